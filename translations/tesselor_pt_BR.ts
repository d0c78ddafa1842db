<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR">
<context>
    <name>Tesselor</name>
    <message>
        <source>&quot;%1&quot; cannot be opened.</source>
        <translation>Não foi possível abrir “%1”.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; needs more memory than is available.</source>
        <translation>Memória insuficiente para “%1”.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a picture the game can read.</source>
        <translation>“%1” não é uma imagem que o jogo consiga ler.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is %2 x %3 pixels; a skin has 3 x 13 cells, so it has at least 3 x 13 pixels.</source>
        <translation>“%1” tem %2&#xa0;×&#xa0;%3 pixels; um tema tem 3&#xa0;×&#xa0;13 casas e precisa de pelo menos 3&#xa0;×&#xa0;13 pixels.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is %2 x %3 pixels; a skin has at most 16 million pixels.</source>
        <translation>“%1” tem %2&#xa0;×&#xa0;%3 pixels; um tema pode ter no máximo 16 milhões de pixels.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was not found.</source>
        <translation>“%1” não foi encontrado.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is larger than 64 megabytes, the most a skin may have.</source>
        <translation>“%1” passa de 64&#xa0;MB, o máximo para um tema.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; takes too long to read.</source>
        <translation>“%1” demora demais para ser lido.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is damaged or incomplete.</source>
        <translation>“%1” está danificado ou incompleto.</translation>
    </message>
    <message>
        <source>levels and skins</source>
        <translation>Níveis e temas</translation>
    </message>
    <message>
        <source>help</source>
        <translation>Ajuda</translation>
    </message>
    <message>
        <source>high scores</source>
        <translation>Recordes</translation>
    </message>
    <message>
        <source>practice</source>
        <translation>Treino</translation>
    </message>
    <message>
        <source>junior</source>
        <translation>Iniciante</translation>
    </message>
    <message>
        <source>senior</source>
        <translation>Avançado</translation>
    </message>
    <message>
        <source>expert</source>
        <translation>Veterano</translation>
    </message>
    <message>
        <source>master</source>
        <translation>Mestre</translation>
    </message>
    <message>
        <source>Skin %1</source>
        <translation>Tema %1</translation>
    </message>
    <message>
        <source> select level</source>
        <translation>Escolha o nível</translation>
    </message>
    <message>
        <source>select skin</source>
        <translation>Escolha o tema</translation>
    </message>
    <message>
        <source>for more skins</source>
        <translation>Mais temas em</translation>
    </message>
    <message>
        <source>Opens the rules of the game</source>
        <translation>Abre as regras do jogo</translation>
    </message>
    <message>
        <source>Plays a game by itself</source>
        <translation>Mostra uma partida automática</translation>
    </message>
    <message>
        <source>Eraser: lock it over a card to remove that card</source>
        <translation>Borracha: coloque sobre uma carta para apagá-la</translation>
    </message>
    <message>
        <source>Move the card: arrow keys or mouse</source>
        <translation>Mover a carta: setas ou mouse</translation>
    </message>
    <message>
        <source>Lock the card: space bar or left mouse button</source>
        <translation>Colocar a carta: barra de espaço ou botão esquerdo do mouse</translation>
    </message>
    <message>
        <source>Pause and resume: P or right mouse button</source>
        <translation>Pausar e retomar: P ou botão direito do mouse</translation>
    </message>
    <message>
        <source>move card</source>
        <translation>Mover</translation>
    </message>
    <message>
        <source>lock card</source>
        <translation>Colocar</translation>
    </message>
    <message>
        <source>pause/resume</source>
        <translation>Pausar/seguir</translation>
    </message>
    <message>
        <source>arrow keys</source>
        <translation>Setas</translation>
    </message>
    <message>
        <source>space</source>
        <translation>Espaço</translation>
    </message>
    <message>
        <source>active card      </source>
        <translation>Carta ativa</translation>
    </message>
    <message>
        <source>erasor</source>
        <translation>Borracha</translation>
    </message>
    <message>
        <source>more</source>
        <translation>Mais</translation>
    </message>
    <message>
        <source>demo</source>
        <translation>Demo</translation>
    </message>
    <message>
        <source>Start a new game</source>
        <translation>Começar uma nova partida</translation>
    </message>
    <message>
        <source>Choose a level and a skin</source>
        <translation>Escolher nível e tema</translation>
    </message>
    <message>
        <source>How to play</source>
        <translation>Como jogar</translation>
    </message>
    <message>
        <source>High Score </source>
        <translation>Recordes</translation>
    </message>
    <message>
        <source>Read the rules</source>
        <translation>Ler as regras</translation>
    </message>
    <message>
        <source>play</source>
        <translation>Jogar</translation>
    </message>
    <message>
        <source>menu</source>
        <translation>Menu</translation>
    </message>
    <message>
        <source>score</source>
        <comment>button of the high-score table</comment>
        <translation>Recordes</translation>
    </message>
    <message>
        <source>Starts a new game</source>
        <translation>Começa uma nova partida</translation>
    </message>
    <message>
        <source>How the game is played</source>
        <translation>Explica como jogar</translation>
    </message>
    <message>
        <source>The four best games</source>
        <translation>As quatro melhores partidas</translation>
    </message>
    <message>
        <source>Enter Your Name</source>
        <translation>Digite seu nome</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Place %1: empty</source>
        <translation>Posição %1: vaga</translation>
    </message>
    <message>
        <source>Place %1: %2, score %3, %4</source>
        <comment>place, player, score, date</comment>
        <translation>Posição %1: %2, pontuação %3, %4</translation>
    </message>
    <message>
        <source>no name</source>
        <translation>sem nome</translation>
    </message>
    <message>
        <source>name</source>
        <translation>Nome</translation>
    </message>
    <message>
        <source>date</source>
        <translation>Data</translation>
    </message>
    <message>
        <source>score</source>
        <translation>Pontuação</translation>
    </message>
    <message>
        <source>submit your high score</source>
        <translation>Publique seu recorde em</translation>
    </message>
    <message>
        <source>Exit </source>
        <translation>Sair</translation>
    </message>
    <message>
        <source>exit</source>
        <translation>Sair</translation>
    </message>
    <message>
        <source>Ends the program</source>
        <translation>Fecha o jogo</translation>
    </message>
    <message>
        <source>minimise</source>
        <translation>Minimizar</translation>
    </message>
    <message>
        <source>Score %1</source>
        <translation>Pontuação: %1</translation>
    </message>
    <message numerus="yes">
        <source>%n card(s) left</source>
        <translation>
            <numerusform>Resta %n carta</numerusform>
            <numerusform>Restam %n cartas</numerusform>
        </translation>
    </message>
    <message>
        <source>Time used</source>
        <translation>Tempo usado</translation>
    </message>
    <message>
        <source>Come and compete online at </source>
        <translation>Desafie outros jogadores em</translation>
    </message>
    <message>
        <source>CARDS LEFT</source>
        <translation>CARTAS</translation>
    </message>
    <message>
        <source>SCORE</source>
        <translation>PONTUAÇÃO</translation>
    </message>
    <message>
        <source>next card</source>
        <translation>Próxima</translation>
    </message>
    <message>
        <source>The recording could not be written to %1.</source>
        <translation>Não foi possível salvar a gravação em %1.</translation>
    </message>
    <message>
        <source>Line up cards by : color, shape, quantity or series <byte value="xd"/>
1,2,3,4. For high score make multiple combinations</source>
        <translation>Alinhe 4 cartas por cor, forma, número ou sequência 1, 2, 3, 4. Mais em comum, mais pontos!</translation>
    </message>
    <message>
        <source>The rules of the game</source>
        <translation>As regras do jogo</translation>
    </message>
    <message>
        <source>Time is up: locked in row %1, column %2.</source>
        <translation>Tempo esgotado: colocada na fileira %1, coluna %2.</translation>
    </message>
    <message>
        <source>Time is up.</source>
        <translation>Tempo esgotado.</translation>
    </message>
    <message numerus="yes">
        <source>Line scored: %Ln point(s).</source>
        <translation>
            <numerusform>Linha completa: %Ln ponto.</numerusform>
            <numerusform>Linha completa: %Ln pontos.</numerusform>
        </translation>
    </message>
    <message>
        <source>Game over. %1.</source>
        <translation>Fim de jogo. %1.</translation>
    </message>
    <message>
        <source>Are You Sure You want To Replace This Skin !</source>
        <translation>Quer mesmo substituir este tema?</translation>
    </message>
    <message>
        <source>No skins were found. A skin is a picture of 3 x 13 cards; put one in %1.</source>
        <translation>Nenhum tema encontrado. Um tema é uma imagem de 3&#xa0;×&#xa0;13 cartas; coloque uma em %1.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be written into %2.</source>
        <comment>file, folder</comment>
        <translation>Não foi possível copiar “%1” para %2.</translation>
    </message>
    <message>
        <source>Paused.</source>
        <translation>Em pausa.</translation>
    </message>
    <message>
        <source>Game resumed.</source>
        <translation>Partida retomada.</translation>
    </message>
    <message>
        <source>A quarter of the time bar is left.</source>
        <translation>Resta um quarto do tempo.</translation>
    </message>
    <message>
        <source>covered</source>
        <comment>cell of the board</comment>
        <translation>coberta</translation>
    </message>
    <message>
        <source>empty</source>
        <comment>cell of the board</comment>
        <translation>vazia</translation>
    </message>
    <message>
        <source>%1, active card</source>
        <comment>a card</comment>
        <translation>%1, carta ativa</translation>
    </message>
    <message>
        <source>%1, active card, over %2</source>
        <comment>two cards</comment>
        <translation>%1, carta ativa, sobre %2</translation>
    </message>
    <message>
        <source>over %2, active card %1</source>
        <comment>two cards</comment>
        <translation>sobre %2, carta ativa %1</translation>
    </message>
    <message>
        <source>eraser</source>
        <translation>borracha</translation>
    </message>
    <message>
        <source>shape %1, colour %2, quantity %3</source>
        <translation>forma %1, cor %2, quantidade %3</translation>
    </message>
    <message>
        <source>Row %1, column %2: %3</source>
        <translation>Fileira %1, coluna %2: %3</translation>
    </message>
    <message>
        <source>Next card: none</source>
        <translation>Próxima carta: nenhuma</translation>
    </message>
    <message>
        <source>Next card: %1</source>
        <translation>Próxima carta: %1</translation>
    </message>
    <message>
        <source>Board, level %1, paused</source>
        <translation>Tabuleiro, nível %1, em pausa</translation>
    </message>
    <message>
        <source>Board, level %1</source>
        <translation>Tabuleiro, nível %1</translation>
    </message>
    <message>
        <source>empty, drop a picture here for a new skin</source>
        <comment>slot of the menu</comment>
        <translation>Vazio, solte uma imagem aqui para adicionar um tema</translation>
    </message>
    <message>
        <source>Important notice!</source>
        <translation>Aviso importante!</translation>
    </message>
    <message>
        <source>This application works with small fonts only</source>
        <translation>Este jogo só funciona com fontes pequenas</translation>
    </message>
    <message>
        <source>Please change your system to &quot;Small Fonts&quot;</source>
        <translation>Mude o sistema para “Fontes pequenas”</translation>
    </message>
    <message>
        <source>in the Windows Setting System</source>
        <translation>nas configurações do Windows</translation>
    </message>
    <message>
        <source>Usage: tesselor [options]
A single-player card puzzle.

  -h, --help     show this help and exit
  -v, --version  show the version and exit
      --scale N  enlarge the window N times, from 1 to 4, such as 1.5

Qt options such as -platform are accepted as well. Set TESSELOR_HOME to use
another folder for skins, rules text and sound files.
</source>
        <translation>Uso: tesselor [opções]
Um quebra-cabeça de cartas para um jogador.

  -h, --help     mostra esta ajuda e sai
  -v, --version  mostra a versão e sai
      --scale N  amplia a janela N vezes, de 1 a 4, por exemplo 1.5

As opções do Qt, como -platform, também são aceitas. Use TESSELOR_HOME para
indicar outra pasta de temas, regras e sons.
</translation>
    </message>
    <message>
        <source>tesselor: --scale takes a number from 1 to 4, such as 1.5, not &quot;%1&quot;.</source>
        <translation>tesselor: --scale exige um número de 1 a 4, por exemplo 1.5, e não “%1”.</translation>
    </message>
    <message>
        <source>tesselor cannot show its window: no display is available.</source>
        <translation>O tesselor não pode mostrar a janela: não há nenhuma tela disponível.</translation>
    </message>
    <message>
        <source>tesselor cannot show its window: Qt&apos;s plugin for Wayland is missing. It is in the package %1.</source>
        <extracomment>%1: a name such as qt6-wayland</extracomment>
        <translation>O tesselor não pode mostrar a janela: falta o plugin do Qt para Wayland. Ele está no pacote %1.</translation>
    </message>
</context>
</TS>

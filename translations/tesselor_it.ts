<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it">
<context>
    <name>Tesselor</name>
    <message>
        <source>&quot;%1&quot; cannot be opened.</source>
        <translation>Impossibile aprire “%1”.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; needs more memory than is available.</source>
        <translation>Memoria insufficiente per “%1”.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a picture the game can read.</source>
        <translation>“%1” non è un’immagine leggibile dal gioco.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is %2 x %3 pixels; a skin has 3 x 13 cells, so it has at least 3 x 13 pixels.</source>
        <translation>“%1” misura %2&#xa0;×&#xa0;%3 pixel; un tema ha 3&#xa0;×&#xa0;13 caselle, quindi servono almeno 3&#xa0;×&#xa0;13 pixel.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is %2 x %3 pixels; a skin has at most 16 million pixels.</source>
        <translation>“%1” misura %2&#xa0;×&#xa0;%3 pixel; un tema può avere al massimo 16 milioni di pixel.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was not found.</source>
        <translation>“%1” non trovato.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is larger than 64 megabytes, the most a skin may have.</source>
        <translation>“%1” supera i 64&#xa0;MB, il massimo per un tema.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; takes too long to read.</source>
        <translation>La lettura di “%1” richiede troppo tempo.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is damaged or incomplete.</source>
        <translation>“%1” è danneggiato o incompleto.</translation>
    </message>
    <message>
        <source>levels and skins</source>
        <translation>Livelli e temi</translation>
    </message>
    <message>
        <source>help</source>
        <translation>Aiuto</translation>
    </message>
    <message>
        <source>high scores</source>
        <translation>Record</translation>
    </message>
    <message>
        <source>practice</source>
        <translation>Pratica</translation>
    </message>
    <message>
        <source>junior</source>
        <translation>Novizio</translation>
    </message>
    <message>
        <source>senior</source>
        <translation>Avanzato</translation>
    </message>
    <message>
        <source>expert</source>
        <translation>Esperto</translation>
    </message>
    <message>
        <source>master</source>
        <translation>Maestro</translation>
    </message>
    <message>
        <source>Skin %1</source>
        <translation>Tema %1</translation>
    </message>
    <message>
        <source> select level</source>
        <translation>Scegli livello</translation>
    </message>
    <message>
        <source>select skin</source>
        <translation>Scegli tema</translation>
    </message>
    <message>
        <source>for more skins</source>
        <translation>Altri temi su</translation>
    </message>
    <message>
        <source>Opens the rules of the game</source>
        <translation>Apre le regole del gioco</translation>
    </message>
    <message>
        <source>Plays a game by itself</source>
        <translation>Mostra una partita automatica</translation>
    </message>
    <message>
        <source>Eraser: lock it over a card to remove that card</source>
        <translation>Gomma: piazzala su una carta per cancellarla</translation>
    </message>
    <message>
        <source>Move the card: arrow keys or mouse</source>
        <translation>Spostare la carta: frecce o mouse</translation>
    </message>
    <message>
        <source>Lock the card: space bar or left mouse button</source>
        <translation>Piazzare la carta: barra spaziatrice o tasto sinistro del mouse</translation>
    </message>
    <message>
        <source>Pause and resume: P or right mouse button</source>
        <translation>Pausa e ripresa: P o tasto destro del mouse</translation>
    </message>
    <message>
        <source>move card</source>
        <translation>Sposta</translation>
    </message>
    <message>
        <source>lock card</source>
        <translation>Piazza</translation>
    </message>
    <message>
        <source>pause/resume</source>
        <translation>Pausa/ripresa</translation>
    </message>
    <message>
        <source>arrow keys</source>
        <translation>Frecce</translation>
    </message>
    <message>
        <source>space</source>
        <translation>Spazio</translation>
    </message>
    <message>
        <source>active card      </source>
        <translation>Carta attiva</translation>
    </message>
    <message>
        <source>erasor</source>
        <translation>Gomma</translation>
    </message>
    <message>
        <source>more</source>
        <translation>Altro</translation>
    </message>
    <message>
        <source>demo</source>
        <translation>Demo</translation>
    </message>
    <message>
        <source>Start a new game</source>
        <translation>Inizia una nuova partita</translation>
    </message>
    <message>
        <source>Choose a level and a skin</source>
        <translation>Scegli livello e tema</translation>
    </message>
    <message>
        <source>How to play</source>
        <translation>Come si gioca</translation>
    </message>
    <message>
        <source>High Score </source>
        <translation>Record</translation>
    </message>
    <message>
        <source>Read the rules</source>
        <translation>Leggi le regole</translation>
    </message>
    <message>
        <source>play</source>
        <translation>Gioca</translation>
    </message>
    <message>
        <source>menu</source>
        <translation>Menu</translation>
    </message>
    <message>
        <source>score</source>
        <comment>button of the high-score table</comment>
        <translation>Record</translation>
    </message>
    <message>
        <source>Starts a new game</source>
        <translation>Inizia una nuova partita</translation>
    </message>
    <message>
        <source>How the game is played</source>
        <translation>Spiega come si gioca</translation>
    </message>
    <message>
        <source>The four best games</source>
        <translation>Le quattro partite migliori</translation>
    </message>
    <message>
        <source>Enter Your Name</source>
        <translation>Inserisci il tuo nome</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Place %1: empty</source>
        <translation>Posto %1: libero</translation>
    </message>
    <message>
        <source>Place %1: %2, score %3, %4</source>
        <comment>place, player, score, date</comment>
        <translation>Posto %1: %2, punteggio %3, %4</translation>
    </message>
    <message>
        <source>no name</source>
        <translation>senza nome</translation>
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
        <translation>Punteggio</translation>
    </message>
    <message>
        <source>submit your high score</source>
        <translation>Pubblica il tuo record su</translation>
    </message>
    <message>
        <source>Exit </source>
        <translation>Esci</translation>
    </message>
    <message>
        <source>exit</source>
        <translation>Esci</translation>
    </message>
    <message>
        <source>Ends the program</source>
        <translation>Chiude il gioco</translation>
    </message>
    <message>
        <source>minimise</source>
        <translation>Riduci a icona</translation>
    </message>
    <message>
        <source>Score %1</source>
        <translation>Punteggio: %1</translation>
    </message>
    <message numerus="yes">
        <source>%n card(s) left</source>
        <translation>
            <numerusform>%n carta rimasta</numerusform>
            <numerusform>%n carte rimaste</numerusform>
        </translation>
    </message>
    <message>
        <source>Time used</source>
        <translation>Tempo usato</translation>
    </message>
    <message>
        <source>Come and compete online at </source>
        <translation>Sfida altri giocatori online su</translation>
    </message>
    <message>
        <source>CARDS LEFT</source>
        <translation>CARTE RIMASTE</translation>
    </message>
    <message>
        <source>SCORE</source>
        <translation>PUNTEGGIO</translation>
    </message>
    <message>
        <source>next card</source>
        <translation>Prossima</translation>
    </message>
    <message>
        <source>The recording could not be written to %1.</source>
        <translation>Impossibile scrivere la registrazione in %1.</translation>
    </message>
    <message>
        <source>Line up cards by : color, shape, quantity or series <byte value="xd"/>
1,2,3,4. For high score make multiple combinations</source>
        <translation>Allinea 4 carte per colore, forma, numero o scala 1, 2, 3, 4. Più elementi in comune, più punti!</translation>
    </message>
    <message>
        <source>The rules of the game</source>
        <translation>Le regole del gioco</translation>
    </message>
    <message>
        <source>Time is up: locked in row %1, column %2.</source>
        <translation>Tempo scaduto: piazzata in riga %1, colonna %2.</translation>
    </message>
    <message>
        <source>Time is up.</source>
        <translation>Tempo scaduto.</translation>
    </message>
    <message numerus="yes">
        <source>Line scored: %Ln point(s).</source>
        <translation>
            <numerusform>Linea completata: %Ln punto.</numerusform>
            <numerusform>Linea completata: %Ln punti.</numerusform>
        </translation>
    </message>
    <message>
        <source>Game over. %1.</source>
        <translation>Partita finita. %1.</translation>
    </message>
    <message>
        <source>Are You Sure You want To Replace This Skin !</source>
        <translation>Vuoi davvero sostituire questo tema?</translation>
    </message>
    <message>
        <source>No skins were found. A skin is a picture of 3 x 13 cards; put one in %1.</source>
        <translation>Nessun tema trovato. Un tema è un’immagine di 3&#xa0;×&#xa0;13 carte; mettine una in %1.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be written into %2.</source>
        <comment>file, folder</comment>
        <translation>Impossibile copiare “%1” in %2.</translation>
    </message>
    <message>
        <source>Paused.</source>
        <translation>In pausa.</translation>
    </message>
    <message>
        <source>Game resumed.</source>
        <translation>Si riprende.</translation>
    </message>
    <message>
        <source>A quarter of the time bar is left.</source>
        <translation>Resta un quarto del tempo.</translation>
    </message>
    <message>
        <source>covered</source>
        <comment>cell of the board</comment>
        <translation>coperta</translation>
    </message>
    <message>
        <source>empty</source>
        <comment>cell of the board</comment>
        <translation>vuota</translation>
    </message>
    <message>
        <source>%1, active card</source>
        <comment>a card</comment>
        <translation>%1, carta attiva</translation>
    </message>
    <message>
        <source>%1, active card, over %2</source>
        <comment>two cards</comment>
        <translation>%1, carta attiva, su %2</translation>
    </message>
    <message>
        <source>over %2, active card %1</source>
        <comment>two cards</comment>
        <translation>su %2, carta attiva %1</translation>
    </message>
    <message>
        <source>eraser</source>
        <translation>gomma</translation>
    </message>
    <message>
        <source>shape %1, colour %2, quantity %3</source>
        <translation>forma %1, colore %2, quantità %3</translation>
    </message>
    <message>
        <source>Row %1, column %2: %3</source>
        <translation>Riga %1, colonna %2: %3</translation>
    </message>
    <message>
        <source>Next card: none</source>
        <translation>Prossima carta: nessuna</translation>
    </message>
    <message>
        <source>Next card: %1</source>
        <translation>Prossima carta: %1</translation>
    </message>
    <message>
        <source>Board, level %1, paused</source>
        <translation>Tabellone, livello %1, in pausa</translation>
    </message>
    <message>
        <source>Board, level %1</source>
        <translation>Tabellone, livello %1</translation>
    </message>
    <message>
        <source>empty, drop a picture here for a new skin</source>
        <comment>slot of the menu</comment>
        <translation>Vuoto, trascina qui un’immagine per aggiungere un tema</translation>
    </message>
    <message>
        <source>Important notice!</source>
        <translation>Avviso importante!</translation>
    </message>
    <message>
        <source>This application works with small fonts only</source>
        <translation>Questo gioco funziona solo con i caratteri piccoli</translation>
    </message>
    <message>
        <source>Please change your system to &quot;Small Fonts&quot;</source>
        <translation>Imposta il sistema su “Caratteri piccoli”</translation>
    </message>
    <message>
        <source>in the Windows Setting System</source>
        <translation>nelle impostazioni di Windows</translation>
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
        <translation>Uso: tesselor [opzioni]
Un rompicapo con le carte per un giocatore.

  -h, --help     mostra questo aiuto ed esce
  -v, --version  mostra la versione ed esce
      --scale N  ingrandisce la finestra N volte, da 1 a 4, per esempio 1.5

Sono accettate anche le opzioni di Qt, come -platform. Con TESSELOR_HOME si
indica un’altra cartella per temi, regole e suoni.
</translation>
    </message>
    <message>
        <source>tesselor: --scale takes a number from 1 to 4, such as 1.5, not &quot;%1&quot;.</source>
        <translation>tesselor: --scale richiede un numero da 1 a 4, per esempio 1.5, non “%1”.</translation>
    </message>
    <message>
        <source>tesselor cannot show its window: no display is available.</source>
        <translation>tesselor non può mostrare la finestra: nessuno schermo disponibile.</translation>
    </message>
    <message>
        <source>tesselor cannot show its window: Qt&apos;s plugin for Wayland is missing. It is in the package %1.</source>
        <extracomment>%1: a name such as qt6-wayland</extracomment>
        <translation>tesselor non può mostrare la finestra: manca il plugin di Qt per Wayland. Si trova nel pacchetto %1.</translation>
    </message>
</context>
</TS>

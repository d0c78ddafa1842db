<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es">
<context>
    <name>Tesselor</name>
    <message>
        <source>&quot;%1&quot; cannot be opened.</source>
        <translation>No se puede abrir «%1».</translation>
    </message>
    <message>
        <source>&quot;%1&quot; needs more memory than is available.</source>
        <translation>No hay memoria suficiente para «%1».</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a picture the game can read.</source>
        <translation>«%1» no es una imagen que el juego pueda leer.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is %2 x %3 pixels; a skin has 3 x 13 cells, so it has at least 3 x 13 pixels.</source>
        <translation>«%1» mide %2&#xa0;×&#xa0;%3 píxeles; un tema tiene 3&#xa0;×&#xa0;13 casillas, así que necesita al menos 3&#xa0;×&#xa0;13 píxeles.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is %2 x %3 pixels; a skin has at most 16 million pixels.</source>
        <translation>«%1» mide %2&#xa0;×&#xa0;%3 píxeles; un tema puede tener como máximo 16 millones de píxeles.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was not found.</source>
        <translation>No se encuentra «%1».</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is larger than 64 megabytes, the most a skin may have.</source>
        <translation>«%1» supera los 64&#xa0;MB, el máximo para un tema.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; takes too long to read.</source>
        <translation>«%1» tarda demasiado en leerse.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is damaged or incomplete.</source>
        <translation>«%1» está dañado o incompleto.</translation>
    </message>
    <message>
        <source>levels and skins</source>
        <translation>Niveles y temas</translation>
    </message>
    <message>
        <source>help</source>
        <translation>Ayuda</translation>
    </message>
    <message>
        <source>high scores</source>
        <translation>Récords</translation>
    </message>
    <message>
        <source>practice</source>
        <translation>Práctica</translation>
    </message>
    <message>
        <source>junior</source>
        <translation>Novato</translation>
    </message>
    <message>
        <source>senior</source>
        <translation>Avanzado</translation>
    </message>
    <message>
        <source>expert</source>
        <translation>Experto</translation>
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
        <translation>Elige nivel</translation>
    </message>
    <message>
        <source>select skin</source>
        <translation>Elige tema</translation>
    </message>
    <message>
        <source>for more skins</source>
        <translation>Más temas en</translation>
    </message>
    <message>
        <source>Opens the rules of the game</source>
        <translation>Abre las reglas del juego</translation>
    </message>
    <message>
        <source>Plays a game by itself</source>
        <translation>Muestra una partida automática</translation>
    </message>
    <message>
        <source>Eraser: lock it over a card to remove that card</source>
        <translation>Goma: colócala sobre una carta para borrarla</translation>
    </message>
    <message>
        <source>Move the card: arrow keys or mouse</source>
        <translation>Mover la carta: flechas o ratón</translation>
    </message>
    <message>
        <source>Lock the card: space bar or left mouse button</source>
        <translation>Colocar la carta: barra espaciadora o botón izquierdo del ratón</translation>
    </message>
    <message>
        <source>Pause and resume: P or right mouse button</source>
        <translation>Pausar y seguir: P o botón derecho del ratón</translation>
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
        <translation>Flechas</translation>
    </message>
    <message>
        <source>space</source>
        <translation>Espacio</translation>
    </message>
    <message>
        <source>active card      </source>
        <translation>Carta activa</translation>
    </message>
    <message>
        <source>erasor</source>
        <translation>Goma</translation>
    </message>
    <message>
        <source>more</source>
        <translation>Más</translation>
    </message>
    <message>
        <source>demo</source>
        <translation>Demo</translation>
    </message>
    <message>
        <source>Start a new game</source>
        <translation>Empezar una partida nueva</translation>
    </message>
    <message>
        <source>Choose a level and a skin</source>
        <translation>Elegir nivel y tema</translation>
    </message>
    <message>
        <source>How to play</source>
        <translation>Cómo se juega</translation>
    </message>
    <message>
        <source>High Score </source>
        <translation>Récords</translation>
    </message>
    <message>
        <source>Read the rules</source>
        <translation>Leer las reglas</translation>
    </message>
    <message>
        <source>play</source>
        <translation>Jugar</translation>
    </message>
    <message>
        <source>menu</source>
        <translation>Menú</translation>
    </message>
    <message>
        <source>score</source>
        <comment>button of the high-score table</comment>
        <translation>Récords</translation>
    </message>
    <message>
        <source>Starts a new game</source>
        <translation>Empieza una partida nueva</translation>
    </message>
    <message>
        <source>How the game is played</source>
        <translation>Explica cómo se juega</translation>
    </message>
    <message>
        <source>The four best games</source>
        <translation>Las cuatro mejores partidas</translation>
    </message>
    <message>
        <source>Enter Your Name</source>
        <translation>Escribe tu nombre</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Place %1: empty</source>
        <translation>Puesto %1: libre</translation>
    </message>
    <message>
        <source>Place %1: %2, score %3, %4</source>
        <comment>place, player, score, date</comment>
        <translation>Puesto %1: %2, puntuación %3, %4</translation>
    </message>
    <message>
        <source>no name</source>
        <translation>sin nombre</translation>
    </message>
    <message>
        <source>name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>date</source>
        <translation>Fecha</translation>
    </message>
    <message>
        <source>score</source>
        <translation>Puntuación</translation>
    </message>
    <message>
        <source>submit your high score</source>
        <translation>Publica tu récord en</translation>
    </message>
    <message>
        <source>Exit </source>
        <translation>Salir</translation>
    </message>
    <message>
        <source>exit</source>
        <translation>Salir</translation>
    </message>
    <message>
        <source>Ends the program</source>
        <translation>Cierra el juego</translation>
    </message>
    <message>
        <source>minimise</source>
        <translation>Minimizar</translation>
    </message>
    <message>
        <source>Score %1</source>
        <translation>Puntuación: %1</translation>
    </message>
    <message numerus="yes">
        <source>%n card(s) left</source>
        <translation>
            <numerusform>Queda %n carta</numerusform>
            <numerusform>Quedan %n cartas</numerusform>
        </translation>
    </message>
    <message>
        <source>Time used</source>
        <translation>Tiempo usado</translation>
    </message>
    <message>
        <source>Come and compete online at </source>
        <translation>Compite con otros jugadores en</translation>
    </message>
    <message>
        <source>CARDS LEFT</source>
        <translation>CARTAS</translation>
    </message>
    <message>
        <source>SCORE</source>
        <translation>PUNTUACIÓN</translation>
    </message>
    <message>
        <source>next card</source>
        <translation>Siguiente</translation>
    </message>
    <message>
        <source>The recording could not be written to %1.</source>
        <translation>No se pudo guardar la grabación en %1.</translation>
    </message>
    <message>
        <source>Line up cards by : color, shape, quantity or series <byte value="xd"/>
1,2,3,4. For high score make multiple combinations</source>
        <translation>Alinea 4 cartas por color, forma, número o escalera 1, 2, 3, 4. ¡Más coincidencias, más puntos!</translation>
    </message>
    <message>
        <source>The rules of the game</source>
        <translation>Las reglas del juego</translation>
    </message>
    <message>
        <source>Time is up: locked in row %1, column %2.</source>
        <translation>Tiempo agotado: colocada en fila %1, columna %2.</translation>
    </message>
    <message>
        <source>Time is up.</source>
        <translation>Tiempo agotado.</translation>
    </message>
    <message numerus="yes">
        <source>Line scored: %Ln point(s).</source>
        <translation>
            <numerusform>Línea completa: %Ln punto.</numerusform>
            <numerusform>Línea completa: %Ln puntos.</numerusform>
        </translation>
    </message>
    <message>
        <source>Game over. %1.</source>
        <translation>Fin de la partida. %1.</translation>
    </message>
    <message>
        <source>Are You Sure You want To Replace This Skin !</source>
        <translation>¿Seguro que quieres reemplazar este tema?</translation>
    </message>
    <message>
        <source>No skins were found. A skin is a picture of 3 x 13 cards; put one in %1.</source>
        <translation>No se encontró ningún tema. Un tema es una imagen de 3&#xa0;×&#xa0;13 cartas; pon una en %1.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be written into %2.</source>
        <comment>file, folder</comment>
        <translation>No se pudo copiar «%1» en %2.</translation>
    </message>
    <message>
        <source>Paused.</source>
        <translation>En pausa.</translation>
    </message>
    <message>
        <source>Game resumed.</source>
        <translation>Sigue la partida.</translation>
    </message>
    <message>
        <source>A quarter of the time bar is left.</source>
        <translation>Queda un cuarto del tiempo.</translation>
    </message>
    <message>
        <source>covered</source>
        <comment>cell of the board</comment>
        <translation>cubierta</translation>
    </message>
    <message>
        <source>empty</source>
        <comment>cell of the board</comment>
        <translation>vacía</translation>
    </message>
    <message>
        <source>%1, active card</source>
        <comment>a card</comment>
        <translation>%1, carta activa</translation>
    </message>
    <message>
        <source>%1, active card, over %2</source>
        <comment>two cards</comment>
        <translation>%1, carta activa, sobre %2</translation>
    </message>
    <message>
        <source>over %2, active card %1</source>
        <comment>two cards</comment>
        <translation>sobre %2, carta activa %1</translation>
    </message>
    <message>
        <source>eraser</source>
        <translation>goma</translation>
    </message>
    <message>
        <source>shape %1, colour %2, quantity %3</source>
        <translation>forma %1, color %2, cantidad %3</translation>
    </message>
    <message>
        <source>Row %1, column %2: %3</source>
        <translation>Fila %1, columna %2: %3</translation>
    </message>
    <message>
        <source>Next card: none</source>
        <translation>Carta siguiente: ninguna</translation>
    </message>
    <message>
        <source>Next card: %1</source>
        <translation>Carta siguiente: %1</translation>
    </message>
    <message>
        <source>Board, level %1, paused</source>
        <translation>Tablero, nivel %1, en pausa</translation>
    </message>
    <message>
        <source>Board, level %1</source>
        <translation>Tablero, nivel %1</translation>
    </message>
    <message>
        <source>empty, drop a picture here for a new skin</source>
        <comment>slot of the menu</comment>
        <translation>Vacío, suelta aquí una imagen para añadir un tema</translation>
    </message>
    <message>
        <source>Important notice!</source>
        <translation>¡Aviso importante!</translation>
    </message>
    <message>
        <source>This application works with small fonts only</source>
        <translation>Este juego solo funciona con fuentes pequeñas</translation>
    </message>
    <message>
        <source>Please change your system to &quot;Small Fonts&quot;</source>
        <translation>Cambia tu sistema a «Fuentes pequeñas»</translation>
    </message>
    <message>
        <source>in the Windows Setting System</source>
        <translation>en la configuración de Windows</translation>
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
        <translation>Uso: tesselor [opciones]
Un rompecabezas de cartas para un jugador.

  -h, --help     muestra esta ayuda y sale
  -v, --version  muestra la versión y sale
      --scale N  amplía la ventana N veces, de 1 a 4, por ejemplo 1.5

También se aceptan las opciones de Qt, como -platform. Con TESSELOR_HOME se usa
otra carpeta para los temas, las reglas y los sonidos.
</translation>
    </message>
    <message>
        <source>tesselor: --scale takes a number from 1 to 4, such as 1.5, not &quot;%1&quot;.</source>
        <translation>tesselor: --scale requiere un número de 1 a 4, por ejemplo 1.5, no «%1».</translation>
    </message>
    <message>
        <source>tesselor cannot show its window: no display is available.</source>
        <translation>tesselor no puede mostrar su ventana: no hay ninguna pantalla disponible.</translation>
    </message>
    <message>
        <source>tesselor cannot show its window: Qt&apos;s plugin for Wayland is missing. It is in the package %1.</source>
        <extracomment>%1: a name such as qt6-wayland</extracomment>
        <translation>tesselor no puede mostrar su ventana: falta el complemento de Qt para Wayland. Está en el paquete %1.</translation>
    </message>
</context>
</TS>

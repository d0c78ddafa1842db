<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de">
<context>
    <name>Tesselor</name>
    <message>
        <source>&quot;%1&quot; cannot be opened.</source>
        <translation>„%1“ lässt sich nicht öffnen.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; needs more memory than is available.</source>
        <translation>„%1“ braucht mehr Speicher, als verfügbar ist.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a picture the game can read.</source>
        <translation>„%1“ ist kein Bild, das das Spiel lesen kann.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is %2 x %3 pixels; a skin has 3 x 13 cells, so it has at least 3 x 13 pixels.</source>
        <translation>„%1“ hat %2 × %3 Pixel. Ein Skin hat 3 × 13 Felder, also mindestens 3 × 13 Pixel.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is %2 x %3 pixels; a skin has at most 16 million pixels.</source>
        <translation>„%1“ hat %2 × %3 Pixel. Ein Skin darf höchstens 16 Millionen Pixel haben.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was not found.</source>
        <translation>„%1“ wurde nicht gefunden.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is larger than 64 megabytes, the most a skin may have.</source>
        <translation>„%1“ ist größer als 64 Megabyte. Mehr darf ein Skin nicht haben.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; takes too long to read.</source>
        <translation>Das Einlesen von „%1“ dauert zu lange.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is damaged or incomplete.</source>
        <translation>„%1“ ist beschädigt oder unvollständig.</translation>
    </message>
    <message>
        <source>levels and skins</source>
        <translation>Stufen und Skins</translation>
    </message>
    <message>
        <source>help</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>high scores</source>
        <translation>Bestenliste</translation>
    </message>
    <message>
        <source>practice</source>
        <translation>Übung</translation>
    </message>
    <message>
        <source>junior</source>
        <translation>Anfänger</translation>
    </message>
    <message>
        <source>senior</source>
        <translation>Könner</translation>
    </message>
    <message>
        <source>expert</source>
        <translation>Experte</translation>
    </message>
    <message>
        <source>master</source>
        <translation>Meister</translation>
    </message>
    <message>
        <source>Skin %1</source>
        <translation>Skin %1</translation>
    </message>
    <message>
        <source> select level</source>
        <translation>Stufe wählen</translation>
    </message>
    <message>
        <source>select skin</source>
        <translation>Skin wählen</translation>
    </message>
    <message>
        <source>for more skins</source>
        <translation>Weitere Skins:</translation>
    </message>
    <message>
        <source>Opens the rules of the game</source>
        <translation>Öffnet die Spielregeln</translation>
    </message>
    <message>
        <source>Plays a game by itself</source>
        <translation>Führt ein Spiel vor</translation>
    </message>
    <message>
        <source>Eraser: lock it over a card to remove that card</source>
        <translation>Radierer: entfernt die Karte, auf die du ihn legst</translation>
    </message>
    <message>
        <source>Move the card: arrow keys or mouse</source>
        <translation>Karte bewegen: Pfeiltasten oder Maus</translation>
    </message>
    <message>
        <source>Lock the card: space bar or left mouse button</source>
        <translation>Karte legen: Leertaste oder linke Maustaste</translation>
    </message>
    <message>
        <source>Pause and resume: P or right mouse button</source>
        <translation>Pause und weiter: P oder rechte Maustaste</translation>
    </message>
    <message>
        <source>move card</source>
        <translation>Bewegen</translation>
    </message>
    <message>
        <source>lock card</source>
        <translation>Legen</translation>
    </message>
    <message>
        <source>pause/resume</source>
        <translation>Pause/weiter</translation>
    </message>
    <message>
        <source>arrow keys</source>
        <translation>Pfeiltasten</translation>
    </message>
    <message>
        <source>space</source>
        <translation>Leer</translation>
    </message>
    <message>
        <source>active card      </source>
        <translation>Aktive Karte</translation>
    </message>
    <message>
        <source>erasor</source>
        <translation>Radierer</translation>
    </message>
    <message>
        <source>more</source>
        <translation>Mehr</translation>
    </message>
    <message>
        <source>demo</source>
        <translation>Demo</translation>
    </message>
    <message>
        <source>Start a new game</source>
        <translation>Neues Spiel starten</translation>
    </message>
    <message>
        <source>Choose a level and a skin</source>
        <translation>Stufe und Skin wählen</translation>
    </message>
    <message>
        <source>How to play</source>
        <translation>Spielanleitung</translation>
    </message>
    <message>
        <source>High Score </source>
        <translation>Bestenliste</translation>
    </message>
    <message>
        <source>Read the rules</source>
        <translation>Spielregeln lesen</translation>
    </message>
    <message>
        <source>play</source>
        <translation>Spielen</translation>
    </message>
    <message>
        <source>menu</source>
        <translation>Menü</translation>
    </message>
    <message>
        <source>score</source>
        <comment>button of the high-score table</comment>
        <translation>Bestenliste</translation>
    </message>
    <message>
        <source>Starts a new game</source>
        <translation>Startet ein neues Spiel</translation>
    </message>
    <message>
        <source>How the game is played</source>
        <translation>So wird gespielt</translation>
    </message>
    <message>
        <source>The four best games</source>
        <translation>Die vier besten Spiele</translation>
    </message>
    <message>
        <source>Enter Your Name</source>
        <translation>Gib deinen Namen ein</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Place %1: empty</source>
        <translation>Platz %1: frei</translation>
    </message>
    <message>
        <source>Place %1: %2, score %3, %4</source>
        <comment>place, player, score, date</comment>
        <translation>Platz %1: %2, Punkte: %3, %4</translation>
    </message>
    <message>
        <source>no name</source>
        <translation>ohne Namen</translation>
    </message>
    <message>
        <source>name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>score</source>
        <translation>Punkte</translation>
    </message>
    <message>
        <source>submit your high score</source>
        <translation>Bestleistung online eintragen:</translation>
    </message>
    <message>
        <source>Exit </source>
        <translation>Beenden</translation>
    </message>
    <message>
        <source>exit</source>
        <translation>Beenden</translation>
    </message>
    <message>
        <source>Ends the program</source>
        <translation>Beendet das Programm</translation>
    </message>
    <message>
        <source>minimise</source>
        <translation>Minimieren</translation>
    </message>
    <message>
        <source>Score %1</source>
        <translation>Punkte: %1</translation>
    </message>
    <message numerus="yes">
        <source>%n card(s) left</source>
        <translation>
            <numerusform>Noch %n Karte</numerusform>
            <numerusform>Noch %n Karten</numerusform>
        </translation>
    </message>
    <message>
        <source>Time used</source>
        <translation>Verbrauchte Zeit</translation>
    </message>
    <message>
        <source>Come and compete online at </source>
        <translation>Tritt online gegen andere an:</translation>
    </message>
    <message>
        <source>CARDS LEFT</source>
        <translation>KARTEN ÜBRIG</translation>
    </message>
    <message>
        <source>SCORE</source>
        <translation>PUNKTE</translation>
    </message>
    <message>
        <source>next card</source>
        <translation>Nächste</translation>
    </message>
    <message>
        <source>The recording could not be written to %1.</source>
        <translation>Die Aufzeichnung konnte nicht in %1 gespeichert werden.</translation>
    </message>
    <message>
        <source>Line up cards by : color, shape, quantity or series <byte value="xd"/>
1,2,3,4. For high score make multiple combinations</source>
        <translation>Bilde Viererreihen: gleiche Form, Farbe, Anzahl oder Folge 1–4. Mehr Gemeinsamkeiten bringen mehr Punkte.</translation>
    </message>
    <message>
        <source>The rules of the game</source>
        <translation>Spielregeln</translation>
    </message>
    <message>
        <source>Time is up: locked in row %1, column %2.</source>
        <translation>Zeit um: gelegt in Zeile %1, Spalte %2.</translation>
    </message>
    <message>
        <source>Time is up.</source>
        <translation>Zeit um.</translation>
    </message>
    <message numerus="yes">
        <source>Line scored: %Ln point(s).</source>
        <translation>
            <numerusform>Reihe: %Ln Punkt.</numerusform>
            <numerusform>Reihe: %Ln Punkte.</numerusform>
        </translation>
    </message>
    <message>
        <source>Game over. %1.</source>
        <translation>Spiel vorbei. %1.</translation>
    </message>
    <message>
        <source>Are You Sure You want To Replace This Skin !</source>
        <translation>Diesen Skin wirklich ersetzen?</translation>
    </message>
    <message>
        <source>No skins were found. A skin is a picture of 3 x 13 cards; put one in %1.</source>
        <translation>Keine Skins gefunden. Ein Skin ist ein Bild mit 3 × 13 Karten. Kopiere eines nach %1.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be written into %2.</source>
        <comment>file, folder</comment>
        <translation>„%1“ konnte nicht in %2 gespeichert werden.</translation>
    </message>
    <message>
        <source>Paused.</source>
        <translation>Pause.</translation>
    </message>
    <message>
        <source>Game resumed.</source>
        <translation>Weiter.</translation>
    </message>
    <message>
        <source>A quarter of the time bar is left.</source>
        <translation>Noch ein Viertel der Zeit.</translation>
    </message>
    <message>
        <source>covered</source>
        <comment>cell of the board</comment>
        <translation>verdeckt</translation>
    </message>
    <message>
        <source>empty</source>
        <comment>cell of the board</comment>
        <translation>leer</translation>
    </message>
    <message>
        <source>%1, active card</source>
        <comment>a card</comment>
        <translation>%1, aktive Karte</translation>
    </message>
    <message>
        <source>%1, active card, over %2</source>
        <comment>two cards</comment>
        <translation>%1, aktive Karte, über %2</translation>
    </message>
    <message>
        <source>over %2, active card %1</source>
        <comment>two cards</comment>
        <translation>über %2, aktive Karte %1</translation>
    </message>
    <message>
        <source>eraser</source>
        <translation>Radierer</translation>
    </message>
    <message>
        <source>shape %1, colour %2, quantity %3</source>
        <translation>Form %1, Farbe %2, Anzahl %3</translation>
    </message>
    <message>
        <source>Row %1, column %2: %3</source>
        <translation>Zeile %1, Spalte %2: %3</translation>
    </message>
    <message>
        <source>Next card: none</source>
        <translation>Nächste Karte: keine</translation>
    </message>
    <message>
        <source>Next card: %1</source>
        <translation>Nächste Karte: %1</translation>
    </message>
    <message>
        <source>Board, level %1, paused</source>
        <translation>Spielbrett, Stufe %1, Pause</translation>
    </message>
    <message>
        <source>Board, level %1</source>
        <translation>Spielbrett, Stufe %1</translation>
    </message>
    <message>
        <source>empty, drop a picture here for a new skin</source>
        <comment>slot of the menu</comment>
        <translation>leer, für einen neuen Skin ein Bild hierher ziehen</translation>
    </message>
    <message>
        <source>Important notice!</source>
        <translation>Wichtiger Hinweis!</translation>
    </message>
    <message>
        <source>This application works with small fonts only</source>
        <translation>Dieses Programm funktioniert nur mit kleinen Schriftarten</translation>
    </message>
    <message>
        <source>Please change your system to &quot;Small Fonts&quot;</source>
        <translation>Bitte stelle dein System auf „Kleine Schriftarten“ um,</translation>
    </message>
    <message>
        <source>in the Windows Setting System</source>
        <translation>und zwar in den Windows-Einstellungen</translation>
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
        <translation>Aufruf: tesselor [Optionen]
Ein Denkspiel mit Karten für eine Person.

  -h, --help     diese Hilfe anzeigen und beenden
  -v, --version  die Version anzeigen und beenden
      --scale N  das Fenster auf das N-Fache vergrößern (1 bis 4, etwa 1.5)

Qt-Optionen wie -platform werden ebenfalls angenommen. TESSELOR_HOME legt einen
anderen Ordner für Skins, Spielregeln und Klangdateien fest.
</translation>
    </message>
    <message>
        <source>tesselor: --scale takes a number from 1 to 4, such as 1.5, not &quot;%1&quot;.</source>
        <translation>tesselor: --scale erwartet eine Zahl von 1 bis 4, zum Beispiel 1.5, nicht „%1“.</translation>
    </message>
    <message>
        <source>tesselor cannot show its window: no display is available.</source>
        <translation>tesselor kann sein Fenster nicht anzeigen: Es ist keine Anzeige verfügbar.</translation>
    </message>
    <message>
        <source>tesselor cannot show its window: Qt&apos;s plugin for Wayland is missing. It is in the package %1.</source>
        <extracomment>%1: a name such as qt6-wayland</extracomment>
        <translation>tesselor kann sein Fenster nicht anzeigen: Das Qt-Plugin für Wayland fehlt. Es ist im Paket %1 enthalten.</translation>
    </message>
</context>
</TS>

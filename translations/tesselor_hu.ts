<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="hu">
<context>
    <name>Tesselor</name>
    <message>
        <source>&quot;%1&quot; cannot be opened.</source>
        <translation>„%1” nem nyitható meg.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; needs more memory than is available.</source>
        <translation>„%1” több memóriát igényel, mint amennyi szabad.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a picture the game can read.</source>
        <translation>„%1” nem olyan kép, amelyet a játék be tud olvasni.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is %2 x %3 pixels; a skin has 3 x 13 cells, so it has at least 3 x 13 pixels.</source>
        <translation>„%1” mérete %2 × %3 képpont; egy kinézet 3 × 13 mezőből áll, ezért legalább 3 × 13 képpontos.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is %2 x %3 pixels; a skin has at most 16 million pixels.</source>
        <translation>„%1” mérete %2 × %3 képpont; egy kinézet legfeljebb 16 millió képpontos lehet.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was not found.</source>
        <translation>„%1” nem található.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is larger than 64 megabytes, the most a skin may have.</source>
        <translation>„%1” túl nagy; egy kinézet legfeljebb 64 megabájt lehet.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; takes too long to read.</source>
        <translation>„%1” beolvasása túl sokáig tart.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is damaged or incomplete.</source>
        <translation>„%1” sérült vagy hiányos.</translation>
    </message>
    <message>
        <source>levels and skins</source>
        <translation>szintek és kinézetek</translation>
    </message>
    <message>
        <source>help</source>
        <translation>súgó</translation>
    </message>
    <message>
        <source>high scores</source>
        <translation>legjobb eredmények</translation>
    </message>
    <message>
        <source>practice</source>
        <translation>Gyakorló</translation>
    </message>
    <message>
        <source>junior</source>
        <translation>Kezdő</translation>
    </message>
    <message>
        <source>senior</source>
        <translation>Haladó</translation>
    </message>
    <message>
        <source>expert</source>
        <translation>Profi</translation>
    </message>
    <message>
        <source>master</source>
        <translation>Mester</translation>
    </message>
    <message>
        <source>Skin %1</source>
        <translation>Kinézet: %1</translation>
    </message>
    <message>
        <source> select level</source>
        <translation>Válassz szintet</translation>
    </message>
    <message>
        <source>select skin</source>
        <translation>Válassz kinézetet</translation>
    </message>
    <message>
        <source>for more skins</source>
        <translation>További kinézetek:</translation>
    </message>
    <message>
        <source>Opens the rules of the game</source>
        <translation>Megnyitja a játékszabályokat</translation>
    </message>
    <message>
        <source>Plays a game by itself</source>
        <translation>Bemutató játékot indít</translation>
    </message>
    <message>
        <source>Eraser: lock it over a card to remove that card</source>
        <translation>Radír: rakd le egy lapra, és az a lap eltűnik</translation>
    </message>
    <message>
        <source>Move the card: arrow keys or mouse</source>
        <translation>Lap mozgatása: nyilak vagy egér</translation>
    </message>
    <message>
        <source>Lock the card: space bar or left mouse button</source>
        <translation>Lap lerakása: szóköz vagy bal egérgomb</translation>
    </message>
    <message>
        <source>Pause and resume: P or right mouse button</source>
        <translation>Szünet és folytatás: P vagy jobb egérgomb</translation>
    </message>
    <message>
        <source>move card</source>
        <translation>Mozgatás</translation>
    </message>
    <message>
        <source>lock card</source>
        <translation>Lerakás</translation>
    </message>
    <message>
        <source>pause/resume</source>
        <translation>Szünet/tovább</translation>
    </message>
    <message>
        <source>arrow keys</source>
        <translation>Nyilak</translation>
    </message>
    <message>
        <source>space</source>
        <translation>Szóköz</translation>
    </message>
    <message>
        <source>active card      </source>
        <translation>Aktív lap</translation>
    </message>
    <message>
        <source>erasor</source>
        <translation>Radír</translation>
    </message>
    <message>
        <source>more</source>
        <translation>Infó</translation>
    </message>
    <message>
        <source>demo</source>
        <translation>Demó</translation>
    </message>
    <message>
        <source>Start a new game</source>
        <translation>Új játék</translation>
    </message>
    <message>
        <source>Choose a level and a skin</source>
        <translation>Szint és kinézet választása</translation>
    </message>
    <message>
        <source>How to play</source>
        <translation>Így játssz</translation>
    </message>
    <message>
        <source>High Score </source>
        <translation>Legjobb eredmények</translation>
    </message>
    <message>
        <source>Read the rules</source>
        <translation>Játékszabályok</translation>
    </message>
    <message>
        <source>play</source>
        <translation>játék</translation>
    </message>
    <message>
        <source>menu</source>
        <translation>menü</translation>
    </message>
    <message>
        <source>score</source>
        <comment>button of the high-score table</comment>
        <translation>Legjobb eredmények</translation>
    </message>
    <message>
        <source>Starts a new game</source>
        <translation>Új játékot indít</translation>
    </message>
    <message>
        <source>How the game is played</source>
        <translation>Elmagyarázza a játékot</translation>
    </message>
    <message>
        <source>The four best games</source>
        <translation>A négy legjobb eredmény</translation>
    </message>
    <message>
        <source>Enter Your Name</source>
        <translation>Írd be a neved</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Place %1: empty</source>
        <translation>%1. hely: üres</translation>
    </message>
    <message>
        <source>Place %1: %2, score %3, %4</source>
        <comment>place, player, score, date</comment>
        <translation>%1. hely: %2, eredmény: %3, %4</translation>
    </message>
    <message>
        <source>no name</source>
        <translation>névtelen</translation>
    </message>
    <message>
        <source>name</source>
        <translation>Név</translation>
    </message>
    <message>
        <source>date</source>
        <translation>Dátum</translation>
    </message>
    <message>
        <source>score</source>
        <translation>Eredmény</translation>
    </message>
    <message>
        <source>submit your high score</source>
        <translation>Küldd be az eredményed:</translation>
    </message>
    <message>
        <source>Exit </source>
        <translation>Kilépés</translation>
    </message>
    <message>
        <source>exit</source>
        <translation>kilépés</translation>
    </message>
    <message>
        <source>Ends the program</source>
        <translation>Bezárja a programot</translation>
    </message>
    <message>
        <source>minimise</source>
        <translation>kis méret</translation>
    </message>
    <message>
        <source>Score %1</source>
        <translation>Eredmény: %1</translation>
    </message>
    <message numerus="yes">
        <source>%n card(s) left</source>
        <translation>
            <numerusform>%n lap maradt</numerusform>
        </translation>
    </message>
    <message>
        <source>Time used</source>
        <translation>Eltelt idő</translation>
    </message>
    <message>
        <source>Come and compete online at </source>
        <translation>Mérkőzz meg másokkal online:</translation>
    </message>
    <message>
        <source>CARDS LEFT</source>
        <translation>HÁTRALÉVŐ LAP</translation>
    </message>
    <message>
        <source>SCORE</source>
        <translation>EREDMÉNY</translation>
    </message>
    <message>
        <source>next card</source>
        <translation>Következő</translation>
    </message>
    <message>
        <source>The recording could not be written to %1.</source>
        <translation>A felvételt nem sikerült ide írni: %1.</translation>
    </message>
    <message>
        <source>Line up cards by : color, shape, quantity or series <byte value="xd"/>
1,2,3,4. For high score make multiple combinations</source>
        <translation>Rakj egy vonalba négy lapot: azonos szín, alak, darabszám vagy 1, 2, 3, 4 sorozat. Több egyezés, több pont!</translation>
    </message>
    <message>
        <source>The rules of the game</source>
        <translation>Játékszabályok</translation>
    </message>
    <message>
        <source>Time is up: locked in row %1, column %2.</source>
        <translation>Lejárt az idő: lerakva, %1. sor, %2. oszlop.</translation>
    </message>
    <message>
        <source>Time is up.</source>
        <translation>Lejárt az idő.</translation>
    </message>
    <message numerus="yes">
        <source>Line scored: %Ln point(s).</source>
        <translation>
            <numerusform>Vonal: %Ln pont.</numerusform>
        </translation>
    </message>
    <message>
        <source>Game over. %1.</source>
        <translation>Vége a játéknak. %1.</translation>
    </message>
    <message>
        <source>Are You Sure You want To Replace This Skin !</source>
        <translation>Biztosan lecseréled ezt a kinézetet?</translation>
    </message>
    <message>
        <source>No skins were found. A skin is a picture of 3 x 13 cards; put one in %1.</source>
        <translation>Nem található kinézet. A kinézet egy 3 × 13 lapos kép; tegyél egyet ide: %1.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be written into %2.</source>
        <comment>file, folder</comment>
        <translation>„%1” nem írható ide: %2.</translation>
    </message>
    <message>
        <source>Paused.</source>
        <translation>Szünet.</translation>
    </message>
    <message>
        <source>Game resumed.</source>
        <translation>A játék folytatódik.</translation>
    </message>
    <message>
        <source>A quarter of the time bar is left.</source>
        <translation>Az idő negyede maradt.</translation>
    </message>
    <message>
        <source>covered</source>
        <comment>cell of the board</comment>
        <translation>letakarva</translation>
    </message>
    <message>
        <source>empty</source>
        <comment>cell of the board</comment>
        <translation>üres</translation>
    </message>
    <message>
        <source>%1, active card</source>
        <comment>a card</comment>
        <translation>%1, aktív lap</translation>
    </message>
    <message>
        <source>%1, active card, over %2</source>
        <comment>two cards</comment>
        <translation>%1, aktív lap, alatta %2</translation>
    </message>
    <message>
        <source>over %2, active card %1</source>
        <comment>two cards</comment>
        <translation>alul %2, aktív lap %1</translation>
    </message>
    <message>
        <source>eraser</source>
        <translation>radír</translation>
    </message>
    <message>
        <source>shape %1, colour %2, quantity %3</source>
        <translation>%1. alak, %2. szín, %3 darab</translation>
    </message>
    <message>
        <source>Row %1, column %2: %3</source>
        <translation>%1. sor, %2. oszlop: %3</translation>
    </message>
    <message>
        <source>Next card: none</source>
        <translation>Következő lap: nincs</translation>
    </message>
    <message>
        <source>Next card: %1</source>
        <translation>Következő lap: %1</translation>
    </message>
    <message>
        <source>Board, level %1, paused</source>
        <translation>Tábla, %1 szint, szünet</translation>
    </message>
    <message>
        <source>Board, level %1</source>
        <translation>Tábla, %1 szint</translation>
    </message>
    <message>
        <source>empty, drop a picture here for a new skin</source>
        <comment>slot of the menu</comment>
        <translation>üres, új kinézethez húzz ide egy képet</translation>
    </message>
    <message>
        <source>Important notice!</source>
        <translation>Fontos figyelmeztetés!</translation>
    </message>
    <message>
        <source>This application works with small fonts only</source>
        <translation>Ez a program csak kis betűkkel működik</translation>
    </message>
    <message>
        <source>Please change your system to &quot;Small Fonts&quot;</source>
        <translation>Állítsd a rendszert „Kis betűk” méretre</translation>
    </message>
    <message>
        <source>in the Windows Setting System</source>
        <translation>a Windows rendszerbeállításaiban</translation>
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
        <translation>Használat: tesselor [kapcsolók]
Kártyás logikai játék egy játékosnak.

  -h, --help     kiírja ezt a súgót, majd kilép
  -v, --version  kiírja a verziót, majd kilép
      --scale N  N-szeresére nagyítja az ablakot (1 és 4 között, például 1.5)

A Qt kapcsolói, például a -platform, szintén használhatók. A TESSELOR_HOME
változóval más mappa adható meg a kinézeteknek, a szabályoknak és a hangoknak.
</translation>
    </message>
    <message>
        <source>tesselor: --scale takes a number from 1 to 4, such as 1.5, not &quot;%1&quot;.</source>
        <translation>tesselor: a --scale értéke 1 és 4 közötti szám lehet, például 1.5, nem pedig „%1”.</translation>
    </message>
    <message>
        <source>tesselor cannot show its window: no display is available.</source>
        <translation>A tesselor nem tudja megjeleníteni az ablakát: nincs elérhető kijelző.</translation>
    </message>
    <message>
        <source>tesselor cannot show its window: Qt&apos;s plugin for Wayland is missing. It is in the package %1.</source>
        <extracomment>%1: a name such as qt6-wayland</extracomment>
        <translation>A tesselor nem tudja megjeleníteni az ablakát: hiányzik a Qt Wayland-bővítménye. Ebben a csomagban van: %1.</translation>
    </message>
</context>
</TS>

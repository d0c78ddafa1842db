<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="nl">
<context>
    <name>Tesselor</name>
    <message>
        <source>&quot;%1&quot; cannot be opened.</source>
        <translation>“%1” kan niet worden geopend.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; needs more memory than is available.</source>
        <translation>“%1” heeft meer geheugen nodig dan er beschikbaar is.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a picture the game can read.</source>
        <translation>“%1” is geen afbeelding die het spel kan lezen.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is %2 x %3 pixels; a skin has 3 x 13 cells, so it has at least 3 x 13 pixels.</source>
        <translation>“%1” is %2 × %3 pixels. Een skin heeft 3 × 13 vakjes, dus minstens 3 × 13 pixels.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is %2 x %3 pixels; a skin has at most 16 million pixels.</source>
        <translation>“%1” is %2 × %3 pixels. Een skin heeft hoogstens 16 miljoen pixels.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was not found.</source>
        <translation>“%1” is niet gevonden.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is larger than 64 megabytes, the most a skin may have.</source>
        <translation>“%1” is groter dan 64 megabyte. Groter mag een skin niet zijn.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; takes too long to read.</source>
        <translation>Het lezen van “%1” duurt te lang.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is damaged or incomplete.</source>
        <translation>“%1” is beschadigd of onvolledig.</translation>
    </message>
    <message>
        <source>levels and skins</source>
        <translation>Niveaus en skins</translation>
    </message>
    <message>
        <source>help</source>
        <translation>Help</translation>
    </message>
    <message>
        <source>high scores</source>
        <translation>Topscores</translation>
    </message>
    <message>
        <source>practice</source>
        <translation>Oefenen</translation>
    </message>
    <message>
        <source>junior</source>
        <translation>Beginner</translation>
    </message>
    <message>
        <source>senior</source>
        <translation>Gevorderd</translation>
    </message>
    <message>
        <source>expert</source>
        <translation>Expert</translation>
    </message>
    <message>
        <source>master</source>
        <translation>Meester</translation>
    </message>
    <message>
        <source>Skin %1</source>
        <translation>Skin %1</translation>
    </message>
    <message>
        <source> select level</source>
        <translation>Kies niveau</translation>
    </message>
    <message>
        <source>select skin</source>
        <translation>Kies skin</translation>
    </message>
    <message>
        <source>for more skins</source>
        <translation>Meer skins:</translation>
    </message>
    <message>
        <source>Opens the rules of the game</source>
        <translation>Opent de spelregels</translation>
    </message>
    <message>
        <source>Plays a game by itself</source>
        <translation>Speelt een voorbeeldspel</translation>
    </message>
    <message>
        <source>Eraser: lock it over a card to remove that card</source>
        <translation>Gum: verwijdert de kaart waar je hem op legt</translation>
    </message>
    <message>
        <source>Move the card: arrow keys or mouse</source>
        <translation>Kaart verplaatsen: pijltoetsen of muis</translation>
    </message>
    <message>
        <source>Lock the card: space bar or left mouse button</source>
        <translation>Kaart leggen: spatiebalk of linkermuisknop</translation>
    </message>
    <message>
        <source>Pause and resume: P or right mouse button</source>
        <translation>Pauze en verder: P of rechtermuisknop</translation>
    </message>
    <message>
        <source>move card</source>
        <translation>Verplaatsen</translation>
    </message>
    <message>
        <source>lock card</source>
        <translation>Leggen</translation>
    </message>
    <message>
        <source>pause/resume</source>
        <translation>Pauze/verder</translation>
    </message>
    <message>
        <source>arrow keys</source>
        <translation>Pijltoetsen</translation>
    </message>
    <message>
        <source>space</source>
        <translation>Spatie</translation>
    </message>
    <message>
        <source>active card      </source>
        <translation>Actieve kaart</translation>
    </message>
    <message>
        <source>erasor</source>
        <translation>Gum</translation>
    </message>
    <message>
        <source>more</source>
        <translation>Meer</translation>
    </message>
    <message>
        <source>demo</source>
        <translation>Demo</translation>
    </message>
    <message>
        <source>Start a new game</source>
        <translation>Nieuw spel starten</translation>
    </message>
    <message>
        <source>Choose a level and a skin</source>
        <translation>Kies een niveau en een skin</translation>
    </message>
    <message>
        <source>How to play</source>
        <translation>Speluitleg</translation>
    </message>
    <message>
        <source>High Score </source>
        <translation>Topscores</translation>
    </message>
    <message>
        <source>Read the rules</source>
        <translation>Lees de spelregels</translation>
    </message>
    <message>
        <source>play</source>
        <translation>Spelen</translation>
    </message>
    <message>
        <source>menu</source>
        <translation>Menu</translation>
    </message>
    <message>
        <source>score</source>
        <comment>button of the high-score table</comment>
        <translation>Topscores</translation>
    </message>
    <message>
        <source>Starts a new game</source>
        <translation>Start een nieuw spel</translation>
    </message>
    <message>
        <source>How the game is played</source>
        <translation>Hoe het spel werkt</translation>
    </message>
    <message>
        <source>The four best games</source>
        <translation>De vier beste spellen</translation>
    </message>
    <message>
        <source>Enter Your Name</source>
        <translation>Voer je naam in</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Place %1: empty</source>
        <translation>Plaats %1: leeg</translation>
    </message>
    <message>
        <source>Place %1: %2, score %3, %4</source>
        <comment>place, player, score, date</comment>
        <translation>Plaats %1: %2, score %3, %4</translation>
    </message>
    <message>
        <source>no name</source>
        <translation>geen naam</translation>
    </message>
    <message>
        <source>name</source>
        <translation>Naam</translation>
    </message>
    <message>
        <source>date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>score</source>
        <translation>Score</translation>
    </message>
    <message>
        <source>submit your high score</source>
        <translation>Stuur je topscore in:</translation>
    </message>
    <message>
        <source>Exit </source>
        <translation>Afsluiten</translation>
    </message>
    <message>
        <source>exit</source>
        <translation>Afsluiten</translation>
    </message>
    <message>
        <source>Ends the program</source>
        <translation>Sluit het programma af</translation>
    </message>
    <message>
        <source>minimise</source>
        <translation>Minimaliseren</translation>
    </message>
    <message>
        <source>Score %1</source>
        <translation>Score %1</translation>
    </message>
    <message numerus="yes">
        <source>%n card(s) left</source>
        <translation>
            <numerusform>Nog %n kaart</numerusform>
            <numerusform>Nog %n kaarten</numerusform>
        </translation>
    </message>
    <message>
        <source>Time used</source>
        <translation>Verstreken tijd</translation>
    </message>
    <message>
        <source>Come and compete online at </source>
        <translation>Speel online tegen anderen:</translation>
    </message>
    <message>
        <source>CARDS LEFT</source>
        <translation>KAARTEN OVER</translation>
    </message>
    <message>
        <source>SCORE</source>
        <translation>SCORE</translation>
    </message>
    <message>
        <source>next card</source>
        <translation>Volgende</translation>
    </message>
    <message>
        <source>The recording could not be written to %1.</source>
        <translation>De opname kon niet in %1 worden opgeslagen.</translation>
    </message>
    <message>
        <source>Line up cards by : color, shape, quantity or series <byte value="xd"/>
1,2,3,4. For high score make multiple combinations</source>
        <translation>Leg lijnen van vier: zelfde vorm, kleur of aantal, of de reeks 1–4. Meer overeenkomsten leveren meer punten op.</translation>
    </message>
    <message>
        <source>The rules of the game</source>
        <translation>Spelregels</translation>
    </message>
    <message>
        <source>Time is up: locked in row %1, column %2.</source>
        <translation>Tijd is om: gelegd op rij %1, kolom %2.</translation>
    </message>
    <message>
        <source>Time is up.</source>
        <translation>Tijd is om.</translation>
    </message>
    <message numerus="yes">
        <source>Line scored: %Ln point(s).</source>
        <translation>
            <numerusform>Lijn: %Ln punt.</numerusform>
            <numerusform>Lijn: %Ln punten.</numerusform>
        </translation>
    </message>
    <message>
        <source>Game over. %1.</source>
        <translation>Spel afgelopen. %1.</translation>
    </message>
    <message>
        <source>Are You Sure You want To Replace This Skin !</source>
        <translation>Weet je zeker dat je deze skin wilt vervangen?</translation>
    </message>
    <message>
        <source>No skins were found. A skin is a picture of 3 x 13 cards; put one in %1.</source>
        <translation>Geen skins gevonden. Een skin is een afbeelding van 3 × 13 kaarten. Zet er een in %1.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be written into %2.</source>
        <comment>file, folder</comment>
        <translation>“%1” kon niet in %2 worden opgeslagen.</translation>
    </message>
    <message>
        <source>Paused.</source>
        <translation>Pauze.</translation>
    </message>
    <message>
        <source>Game resumed.</source>
        <translation>Verder.</translation>
    </message>
    <message>
        <source>A quarter of the time bar is left.</source>
        <translation>Nog een kwart van de tijd.</translation>
    </message>
    <message>
        <source>covered</source>
        <comment>cell of the board</comment>
        <translation>afgedekt</translation>
    </message>
    <message>
        <source>empty</source>
        <comment>cell of the board</comment>
        <translation>leeg</translation>
    </message>
    <message>
        <source>%1, active card</source>
        <comment>a card</comment>
        <translation>%1, actieve kaart</translation>
    </message>
    <message>
        <source>%1, active card, over %2</source>
        <comment>two cards</comment>
        <translation>%1, actieve kaart, boven %2</translation>
    </message>
    <message>
        <source>over %2, active card %1</source>
        <comment>two cards</comment>
        <translation>boven %2, actieve kaart %1</translation>
    </message>
    <message>
        <source>eraser</source>
        <translation>gum</translation>
    </message>
    <message>
        <source>shape %1, colour %2, quantity %3</source>
        <translation>vorm %1, kleur %2, aantal %3</translation>
    </message>
    <message>
        <source>Row %1, column %2: %3</source>
        <translation>Rij %1, kolom %2: %3</translation>
    </message>
    <message>
        <source>Next card: none</source>
        <translation>Volgende kaart: geen</translation>
    </message>
    <message>
        <source>Next card: %1</source>
        <translation>Volgende kaart: %1</translation>
    </message>
    <message>
        <source>Board, level %1, paused</source>
        <translation>Bord, niveau %1, pauze</translation>
    </message>
    <message>
        <source>Board, level %1</source>
        <translation>Bord, niveau %1</translation>
    </message>
    <message>
        <source>empty, drop a picture here for a new skin</source>
        <comment>slot of the menu</comment>
        <translation>leeg, sleep hier een afbeelding naartoe voor een nieuwe skin</translation>
    </message>
    <message>
        <source>Important notice!</source>
        <translation>Belangrijk!</translation>
    </message>
    <message>
        <source>This application works with small fonts only</source>
        <translation>Dit programma werkt alleen met kleine lettertypen</translation>
    </message>
    <message>
        <source>Please change your system to &quot;Small Fonts&quot;</source>
        <translation>Stel je systeem in op “Kleine lettertypen”</translation>
    </message>
    <message>
        <source>in the Windows Setting System</source>
        <translation>in de instellingen van Windows</translation>
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
        <translation>Gebruik: tesselor [opties]
Een kaartpuzzel voor één speler.

  -h, --help     deze hulptekst tonen en afsluiten
  -v, --version  de versie tonen en afsluiten
      --scale N  het venster N keer zo groot maken, 1 tot en met 4, zoals 1.5

Qt-opties zoals -platform worden ook geaccepteerd. Met TESSELOR_HOME kies je een
andere map voor skins, spelregels en geluidsbestanden.
</translation>
    </message>
    <message>
        <source>tesselor: --scale takes a number from 1 to 4, such as 1.5, not &quot;%1&quot;.</source>
        <translation>tesselor: --scale verwacht een getal van 1 tot en met 4, zoals 1.5, niet “%1”.</translation>
    </message>
    <message>
        <source>tesselor cannot show its window: no display is available.</source>
        <translation>tesselor kan zijn venster niet tonen: er is geen beeldscherm beschikbaar.</translation>
    </message>
    <message>
        <source>tesselor cannot show its window: Qt&apos;s plugin for Wayland is missing. It is in the package %1.</source>
        <extracomment>%1: a name such as qt6-wayland</extracomment>
        <translation>tesselor kan zijn venster niet tonen: de Qt-plug-in voor Wayland ontbreekt. Die zit in het pakket %1.</translation>
    </message>
</context>
</TS>

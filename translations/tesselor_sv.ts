<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="sv">
<context>
    <name>Tesselor</name>
    <message>
        <source>&quot;%1&quot; cannot be opened.</source>
        <translation>”%1” kan inte öppnas.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; needs more memory than is available.</source>
        <translation>”%1” behöver mer minne än vad som finns.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a picture the game can read.</source>
        <translation>”%1” är inte en bild som spelet kan läsa.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is %2 x %3 pixels; a skin has 3 x 13 cells, so it has at least 3 x 13 pixels.</source>
        <translation>”%1” är %2 × %3 bildpunkter. Ett tema har 3 × 13 rutor, alltså minst 3 × 13 bildpunkter.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is %2 x %3 pixels; a skin has at most 16 million pixels.</source>
        <translation>”%1” är %2 × %3 bildpunkter. Ett tema får ha högst 16 miljoner bildpunkter.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was not found.</source>
        <translation>”%1” hittades inte.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is larger than 64 megabytes, the most a skin may have.</source>
        <translation>”%1” är större än 64 megabyte. Större får ett tema inte vara.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; takes too long to read.</source>
        <translation>”%1” tar för lång tid att läsa.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is damaged or incomplete.</source>
        <translation>”%1” är skadad eller ofullständig.</translation>
    </message>
    <message>
        <source>levels and skins</source>
        <translation>Nivåer och teman</translation>
    </message>
    <message>
        <source>help</source>
        <translation>Hjälp</translation>
    </message>
    <message>
        <source>high scores</source>
        <translation>Topplista</translation>
    </message>
    <message>
        <source>practice</source>
        <translation>Övning</translation>
    </message>
    <message>
        <source>junior</source>
        <translation>Nybörjare</translation>
    </message>
    <message>
        <source>senior</source>
        <translation>Erfaren</translation>
    </message>
    <message>
        <source>expert</source>
        <translation>Expert</translation>
    </message>
    <message>
        <source>master</source>
        <translation>Mästare</translation>
    </message>
    <message>
        <source>Skin %1</source>
        <translation>Tema %1</translation>
    </message>
    <message>
        <source> select level</source>
        <translation>Välj nivå</translation>
    </message>
    <message>
        <source>select skin</source>
        <translation>Välj tema</translation>
    </message>
    <message>
        <source>for more skins</source>
        <translation>Fler teman:</translation>
    </message>
    <message>
        <source>Opens the rules of the game</source>
        <translation>Öppnar spelreglerna</translation>
    </message>
    <message>
        <source>Plays a game by itself</source>
        <translation>Visar ett exempelspel</translation>
    </message>
    <message>
        <source>Eraser: lock it over a card to remove that card</source>
        <translation>Sudd: lägg det på ett kort för att ta bort kortet</translation>
    </message>
    <message>
        <source>Move the card: arrow keys or mouse</source>
        <translation>Flytta kortet: piltangenter eller mus</translation>
    </message>
    <message>
        <source>Lock the card: space bar or left mouse button</source>
        <translation>Lägg kortet: mellanslag eller vänster musknapp</translation>
    </message>
    <message>
        <source>Pause and resume: P or right mouse button</source>
        <translation>Pausa och fortsätt: P eller höger musknapp</translation>
    </message>
    <message>
        <source>move card</source>
        <translation>Flytta kort</translation>
    </message>
    <message>
        <source>lock card</source>
        <translation>Lägg kort</translation>
    </message>
    <message>
        <source>pause/resume</source>
        <translation>Pausa/fortsätt</translation>
    </message>
    <message>
        <source>arrow keys</source>
        <translation>Pilar</translation>
    </message>
    <message>
        <source>space</source>
        <translation>Space</translation>
    </message>
    <message>
        <source>active card      </source>
        <translation>Aktivt kort</translation>
    </message>
    <message>
        <source>erasor</source>
        <translation>Sudd</translation>
    </message>
    <message>
        <source>more</source>
        <translation>Mer</translation>
    </message>
    <message>
        <source>demo</source>
        <translation>Demo</translation>
    </message>
    <message>
        <source>Start a new game</source>
        <translation>Starta ett nytt spel</translation>
    </message>
    <message>
        <source>Choose a level and a skin</source>
        <translation>Välj nivå och tema</translation>
    </message>
    <message>
        <source>How to play</source>
        <translation>Så spelar du</translation>
    </message>
    <message>
        <source>High Score </source>
        <translation>Topplista</translation>
    </message>
    <message>
        <source>Read the rules</source>
        <translation>Läs spelreglerna</translation>
    </message>
    <message>
        <source>play</source>
        <translation>Spela</translation>
    </message>
    <message>
        <source>menu</source>
        <translation>Meny</translation>
    </message>
    <message>
        <source>score</source>
        <comment>button of the high-score table</comment>
        <translation>Topplista</translation>
    </message>
    <message>
        <source>Starts a new game</source>
        <translation>Startar ett nytt spel</translation>
    </message>
    <message>
        <source>How the game is played</source>
        <translation>Hur man spelar</translation>
    </message>
    <message>
        <source>The four best games</source>
        <translation>De fyra bästa spelen</translation>
    </message>
    <message>
        <source>Enter Your Name</source>
        <translation>Skriv ditt namn</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Place %1: empty</source>
        <translation>Plats %1: tom</translation>
    </message>
    <message>
        <source>Place %1: %2, score %3, %4</source>
        <comment>place, player, score, date</comment>
        <translation>Plats %1: %2, poäng %3, %4</translation>
    </message>
    <message>
        <source>no name</source>
        <translation>inget namn</translation>
    </message>
    <message>
        <source>name</source>
        <translation>Namn</translation>
    </message>
    <message>
        <source>date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>score</source>
        <translation>Poäng</translation>
    </message>
    <message>
        <source>submit your high score</source>
        <translation>Skicka in ditt rekord:</translation>
    </message>
    <message>
        <source>Exit </source>
        <translation>Avsluta</translation>
    </message>
    <message>
        <source>exit</source>
        <translation>Avsluta</translation>
    </message>
    <message>
        <source>Ends the program</source>
        <translation>Avslutar programmet</translation>
    </message>
    <message>
        <source>minimise</source>
        <translation>Minimera</translation>
    </message>
    <message>
        <source>Score %1</source>
        <translation>Poäng: %1</translation>
    </message>
    <message numerus="yes">
        <source>%n card(s) left</source>
        <translation>
            <numerusform>%n kort kvar</numerusform>
            <numerusform>%n kort kvar</numerusform>
        </translation>
    </message>
    <message>
        <source>Time used</source>
        <translation>Förbrukad tid</translation>
    </message>
    <message>
        <source>Come and compete online at </source>
        <translation>Tävla mot andra på nätet:</translation>
    </message>
    <message>
        <source>CARDS LEFT</source>
        <translation>KORT KVAR</translation>
    </message>
    <message>
        <source>SCORE</source>
        <translation>POÄNG</translation>
    </message>
    <message>
        <source>next card</source>
        <translation>Nästa</translation>
    </message>
    <message>
        <source>The recording could not be written to %1.</source>
        <translation>Inspelningen kunde inte sparas i %1.</translation>
    </message>
    <message>
        <source>Line up cards by : color, shape, quantity or series <byte value="xd"/>
1,2,3,4. For high score make multiple combinations</source>
        <translation>Bilda linjer med fyra kort: samma form, färg eller antal, eller serien 1–4. Fler likheter ger fler poäng.</translation>
    </message>
    <message>
        <source>The rules of the game</source>
        <translation>Spelregler</translation>
    </message>
    <message>
        <source>Time is up: locked in row %1, column %2.</source>
        <translation>Tiden är ute: lagt på rad %1, kolumn %2.</translation>
    </message>
    <message>
        <source>Time is up.</source>
        <translation>Tiden är ute.</translation>
    </message>
    <message numerus="yes">
        <source>Line scored: %Ln point(s).</source>
        <translation>
            <numerusform>Linje: %Ln poäng.</numerusform>
            <numerusform>Linje: %Ln poäng.</numerusform>
        </translation>
    </message>
    <message>
        <source>Game over. %1.</source>
        <translation>Spelet är slut. %1.</translation>
    </message>
    <message>
        <source>Are You Sure You want To Replace This Skin !</source>
        <translation>Vill du verkligen ersätta det här temat?</translation>
    </message>
    <message>
        <source>No skins were found. A skin is a picture of 3 x 13 cards; put one in %1.</source>
        <translation>Inga teman hittades. Ett tema är en bild med 3 × 13 kort. Lägg en i %1.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be written into %2.</source>
        <comment>file, folder</comment>
        <translation>”%1” kunde inte sparas i %2.</translation>
    </message>
    <message>
        <source>Paused.</source>
        <translation>Pausat.</translation>
    </message>
    <message>
        <source>Game resumed.</source>
        <translation>Spelet fortsätter.</translation>
    </message>
    <message>
        <source>A quarter of the time bar is left.</source>
        <translation>En fjärdedel av tiden kvar.</translation>
    </message>
    <message>
        <source>covered</source>
        <comment>cell of the board</comment>
        <translation>dold</translation>
    </message>
    <message>
        <source>empty</source>
        <comment>cell of the board</comment>
        <translation>tom</translation>
    </message>
    <message>
        <source>%1, active card</source>
        <comment>a card</comment>
        <translation>%1, aktivt kort</translation>
    </message>
    <message>
        <source>%1, active card, over %2</source>
        <comment>two cards</comment>
        <translation>%1, aktivt kort, över %2</translation>
    </message>
    <message>
        <source>over %2, active card %1</source>
        <comment>two cards</comment>
        <translation>över %2, aktivt kort %1</translation>
    </message>
    <message>
        <source>eraser</source>
        <translation>sudd</translation>
    </message>
    <message>
        <source>shape %1, colour %2, quantity %3</source>
        <translation>form %1, färg %2, antal %3</translation>
    </message>
    <message>
        <source>Row %1, column %2: %3</source>
        <translation>Rad %1, kolumn %2: %3</translation>
    </message>
    <message>
        <source>Next card: none</source>
        <translation>Nästa kort: inget</translation>
    </message>
    <message>
        <source>Next card: %1</source>
        <translation>Nästa kort: %1</translation>
    </message>
    <message>
        <source>Board, level %1, paused</source>
        <translation>Spelplan, nivå %1, pausat</translation>
    </message>
    <message>
        <source>Board, level %1</source>
        <translation>Spelplan, nivå %1</translation>
    </message>
    <message>
        <source>empty, drop a picture here for a new skin</source>
        <comment>slot of the menu</comment>
        <translation>tom, släpp en bild här för ett nytt tema</translation>
    </message>
    <message>
        <source>Important notice!</source>
        <translation>Viktigt!</translation>
    </message>
    <message>
        <source>This application works with small fonts only</source>
        <translation>Programmet fungerar bara med små teckensnitt</translation>
    </message>
    <message>
        <source>Please change your system to &quot;Small Fonts&quot;</source>
        <translation>Ställ in systemet på ”Små teckensnitt”</translation>
    </message>
    <message>
        <source>in the Windows Setting System</source>
        <translation>i inställningarna för Windows</translation>
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
        <translation>Användning: tesselor [flaggor]
Ett kortpussel för en spelare.

  -h, --help     visa den här hjälpen och avsluta
  -v, --version  visa versionen och avsluta
      --scale N  förstora fönstret N gånger, från 1 till 4, till exempel 1.5

Qt-flaggor som -platform fungerar också. Ange TESSELOR_HOME för att använda en
annan mapp för teman, spelregler och ljudfiler.
</translation>
    </message>
    <message>
        <source>tesselor: --scale takes a number from 1 to 4, such as 1.5, not &quot;%1&quot;.</source>
        <translation>tesselor: --scale kräver ett tal från 1 till 4, till exempel 1.5, inte ”%1”.</translation>
    </message>
    <message>
        <source>tesselor cannot show its window: no display is available.</source>
        <translation>tesselor kan inte visa sitt fönster: ingen skärm är tillgänglig.</translation>
    </message>
    <message>
        <source>tesselor cannot show its window: Qt&apos;s plugin for Wayland is missing. It is in the package %1.</source>
        <extracomment>%1: a name such as qt6-wayland</extracomment>
        <translation>tesselor kan inte visa sitt fönster: Qt:s insticksmodul för Wayland saknas. Den finns i paketet %1.</translation>
    </message>
</context>
</TS>

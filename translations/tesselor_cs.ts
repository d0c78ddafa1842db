<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="cs">
<context>
    <name>Tesselor</name>
    <message>
        <source>&quot;%1&quot; cannot be opened.</source>
        <translation>Soubor „%1“ nelze otevřít.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; needs more memory than is available.</source>
        <translation>Soubor „%1“ potřebuje víc paměti, než je k dispozici.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a picture the game can read.</source>
        <translation>„%1“ není obrázek, který by hra uměla načíst.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is %2 x %3 pixels; a skin has 3 x 13 cells, so it has at least 3 x 13 pixels.</source>
        <translation>Obrázek „%1“ má %2 × %3 pixelů; vzhled má 3 × 13 políček, takže musí mít alespoň 3 × 13 pixelů.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is %2 x %3 pixels; a skin has at most 16 million pixels.</source>
        <translation>Obrázek „%1“ má %2 × %3 pixelů; vzhled může mít nejvýše 16 milionů pixelů.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was not found.</source>
        <translation>Soubor „%1“ nebyl nalezen.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is larger than 64 megabytes, the most a skin may have.</source>
        <translation>Soubor „%1“ je příliš velký; vzhled může mít nejvýše 64 megabajtů.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; takes too long to read.</source>
        <translation>Načítání souboru „%1“ trvá příliš dlouho.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is damaged or incomplete.</source>
        <translation>Soubor „%1“ je poškozený nebo neúplný.</translation>
    </message>
    <message>
        <source>levels and skins</source>
        <translation>úrovně a vzhledy</translation>
    </message>
    <message>
        <source>help</source>
        <translation>nápověda</translation>
    </message>
    <message>
        <source>high scores</source>
        <translation>nejlepší skóre</translation>
    </message>
    <message>
        <source>practice</source>
        <translation>Trénink</translation>
    </message>
    <message>
        <source>junior</source>
        <translation>Junior</translation>
    </message>
    <message>
        <source>senior</source>
        <translation>Senior</translation>
    </message>
    <message>
        <source>expert</source>
        <translation>Expert</translation>
    </message>
    <message>
        <source>master</source>
        <translation>Mistr</translation>
    </message>
    <message>
        <source>Skin %1</source>
        <translation>Vzhled %1</translation>
    </message>
    <message>
        <source> select level</source>
        <translation>Zvolte úroveň</translation>
    </message>
    <message>
        <source>select skin</source>
        <translation>Zvolte vzhled</translation>
    </message>
    <message>
        <source>for more skins</source>
        <translation>Další vzhledy:</translation>
    </message>
    <message>
        <source>Opens the rules of the game</source>
        <translation>Otevře pravidla hry</translation>
    </message>
    <message>
        <source>Plays a game by itself</source>
        <translation>Spustí ukázkovou hru</translation>
    </message>
    <message>
        <source>Eraser: lock it over a card to remove that card</source>
        <translation>Guma: položte ji na kartu, kterou chcete odstranit</translation>
    </message>
    <message>
        <source>Move the card: arrow keys or mouse</source>
        <translation>Posunout kartu: šipky nebo myš</translation>
    </message>
    <message>
        <source>Lock the card: space bar or left mouse button</source>
        <translation>Položit kartu: mezerník nebo levé tlačítko myši</translation>
    </message>
    <message>
        <source>Pause and resume: P or right mouse button</source>
        <translation>Pauza a návrat do hry: P nebo pravé tlačítko myši</translation>
    </message>
    <message>
        <source>move card</source>
        <translation>Posunout</translation>
    </message>
    <message>
        <source>lock card</source>
        <translation>Položit</translation>
    </message>
    <message>
        <source>pause/resume</source>
        <translation>Pauza/návrat</translation>
    </message>
    <message>
        <source>arrow keys</source>
        <translation>Šipky</translation>
    </message>
    <message>
        <source>space</source>
        <translation>Mezera</translation>
    </message>
    <message>
        <source>active card      </source>
        <translation>Aktivní karta</translation>
    </message>
    <message>
        <source>erasor</source>
        <translation>Guma</translation>
    </message>
    <message>
        <source>more</source>
        <translation>Více</translation>
    </message>
    <message>
        <source>demo</source>
        <translation>Demo</translation>
    </message>
    <message>
        <source>Start a new game</source>
        <translation>Nová hra</translation>
    </message>
    <message>
        <source>Choose a level and a skin</source>
        <translation>Zvolit úroveň a vzhled</translation>
    </message>
    <message>
        <source>How to play</source>
        <translation>Jak hrát</translation>
    </message>
    <message>
        <source>High Score </source>
        <translation>Nejlepší skóre</translation>
    </message>
    <message>
        <source>Read the rules</source>
        <translation>Přečíst pravidla</translation>
    </message>
    <message>
        <source>play</source>
        <translation>hrát</translation>
    </message>
    <message>
        <source>menu</source>
        <translation>menu</translation>
    </message>
    <message>
        <source>score</source>
        <comment>button of the high-score table</comment>
        <translation>Nejlepší skóre</translation>
    </message>
    <message>
        <source>Starts a new game</source>
        <translation>Spustí novou hru</translation>
    </message>
    <message>
        <source>How the game is played</source>
        <translation>Vysvětlí, jak se hraje</translation>
    </message>
    <message>
        <source>The four best games</source>
        <translation>Čtyři nejlepší hry</translation>
    </message>
    <message>
        <source>Enter Your Name</source>
        <translation>Zadejte své jméno</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Place %1: empty</source>
        <translation>%1. místo: prázdné</translation>
    </message>
    <message>
        <source>Place %1: %2, score %3, %4</source>
        <comment>place, player, score, date</comment>
        <translation>%1. místo: %2, skóre %3, %4</translation>
    </message>
    <message>
        <source>no name</source>
        <translation>beze jména</translation>
    </message>
    <message>
        <source>name</source>
        <translation>Jméno</translation>
    </message>
    <message>
        <source>date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>score</source>
        <translation>Skóre</translation>
    </message>
    <message>
        <source>submit your high score</source>
        <translation>Pošlete své skóre:</translation>
    </message>
    <message>
        <source>Exit </source>
        <translation>Ukončit</translation>
    </message>
    <message>
        <source>exit</source>
        <translation>ukončit</translation>
    </message>
    <message>
        <source>Ends the program</source>
        <translation>Ukončí program</translation>
    </message>
    <message>
        <source>minimise</source>
        <translation>minimalizovat</translation>
    </message>
    <message>
        <source>Score %1</source>
        <translation>Skóre: %1</translation>
    </message>
    <message numerus="yes">
        <source>%n card(s) left</source>
        <translation>
            <numerusform>Zbývá %n karta</numerusform>
            <numerusform>Zbývají %n karty</numerusform>
            <numerusform>Zbývá %n karet</numerusform>
        </translation>
    </message>
    <message>
        <source>Time used</source>
        <translation>Uplynulý čas</translation>
    </message>
    <message>
        <source>Come and compete online at </source>
        <translation>Změřte síly s ostatními online:</translation>
    </message>
    <message>
        <source>CARDS LEFT</source>
        <translation>ZBÝVÁ KARET</translation>
    </message>
    <message>
        <source>SCORE</source>
        <translation>SKÓRE</translation>
    </message>
    <message>
        <source>next card</source>
        <translation>Další</translation>
    </message>
    <message>
        <source>The recording could not be written to %1.</source>
        <translation>Záznam se nepodařilo zapsat do souboru %1.</translation>
    </message>
    <message>
        <source>Line up cards by : color, shape, quantity or series <byte value="xd"/>
1,2,3,4. For high score make multiple combinations</source>
        <translation>Skládejte řady karet se stejnou barvou, tvarem či počtem nebo postupky 1, 2, 3, 4. Čím víc shod, tím víc bodů!</translation>
    </message>
    <message>
        <source>The rules of the game</source>
        <translation>Pravidla hry</translation>
    </message>
    <message>
        <source>Time is up: locked in row %1, column %2.</source>
        <translation>Čas vypršel: karta v řádku %1, sloupci %2.</translation>
    </message>
    <message>
        <source>Time is up.</source>
        <translation>Čas vypršel.</translation>
    </message>
    <message numerus="yes">
        <source>Line scored: %Ln point(s).</source>
        <translation>
            <numerusform>Řada: %Ln bod.</numerusform>
            <numerusform>Řada: %Ln body.</numerusform>
            <numerusform>Řada: %Ln bodů.</numerusform>
        </translation>
    </message>
    <message>
        <source>Game over. %1.</source>
        <translation>Konec hry. %1.</translation>
    </message>
    <message>
        <source>Are You Sure You want To Replace This Skin !</source>
        <translation>Opravdu nahradit tento vzhled?</translation>
    </message>
    <message>
        <source>No skins were found. A skin is a picture of 3 x 13 cards; put one in %1.</source>
        <translation>Nebyly nalezeny žádné vzhledy. Vzhled je obrázek s kartami v mřížce 3 × 13; vložte nějaký do složky %1.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be written into %2.</source>
        <comment>file, folder</comment>
        <translation>Soubor „%1“ se nepodařilo zapsat do složky %2.</translation>
    </message>
    <message>
        <source>Paused.</source>
        <translation>Pauza.</translation>
    </message>
    <message>
        <source>Game resumed.</source>
        <translation>Hra pokračuje.</translation>
    </message>
    <message>
        <source>A quarter of the time bar is left.</source>
        <translation>Zbývá čtvrtina času.</translation>
    </message>
    <message>
        <source>covered</source>
        <comment>cell of the board</comment>
        <translation>zakryté</translation>
    </message>
    <message>
        <source>empty</source>
        <comment>cell of the board</comment>
        <translation>prázdné</translation>
    </message>
    <message>
        <source>%1, active card</source>
        <comment>a card</comment>
        <translation>%1, aktivní karta</translation>
    </message>
    <message>
        <source>%1, active card, over %2</source>
        <comment>two cards</comment>
        <translation>%1, aktivní karta, pod ní %2</translation>
    </message>
    <message>
        <source>over %2, active card %1</source>
        <comment>two cards</comment>
        <translation>vespod %2, aktivní karta %1</translation>
    </message>
    <message>
        <source>eraser</source>
        <translation>guma</translation>
    </message>
    <message>
        <source>shape %1, colour %2, quantity %3</source>
        <translation>tvar %1, barva %2, počet %3</translation>
    </message>
    <message>
        <source>Row %1, column %2: %3</source>
        <translation>Řádek %1, sloupec %2: %3</translation>
    </message>
    <message>
        <source>Next card: none</source>
        <translation>Další karta: žádná</translation>
    </message>
    <message>
        <source>Next card: %1</source>
        <translation>Další karta: %1</translation>
    </message>
    <message>
        <source>Board, level %1, paused</source>
        <translation>Deska, úroveň %1, pauza</translation>
    </message>
    <message>
        <source>Board, level %1</source>
        <translation>Deska, úroveň %1</translation>
    </message>
    <message>
        <source>empty, drop a picture here for a new skin</source>
        <comment>slot of the menu</comment>
        <translation>prázdné, nový vzhled přidáte přetažením obrázku sem</translation>
    </message>
    <message>
        <source>Important notice!</source>
        <translation>Důležité upozornění!</translation>
    </message>
    <message>
        <source>This application works with small fonts only</source>
        <translation>Tento program funguje jen s malým písmem</translation>
    </message>
    <message>
        <source>Please change your system to &quot;Small Fonts&quot;</source>
        <translation>Přepněte systém na „Malé písmo“</translation>
    </message>
    <message>
        <source>in the Windows Setting System</source>
        <translation>v nastavení systému Windows</translation>
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
        <translation>Použití: tesselor [volby]
Logická karetní hra pro jednoho hráče.

  -h, --help     zobrazí tuto nápovědu a skončí
  -v, --version  zobrazí verzi a skončí
      --scale N  zvětší okno N-krát (1 až 4, například 1.5)

Fungují i volby Qt, například -platform. Proměnná TESSELOR_HOME určuje jinou
složku pro vzhledy, text pravidel a zvuky.
</translation>
    </message>
    <message>
        <source>tesselor: --scale takes a number from 1 to 4, such as 1.5, not &quot;%1&quot;.</source>
        <translation>tesselor: volba --scale vyžaduje číslo od 1 do 4, například 1.5, nikoli „%1“.</translation>
    </message>
    <message>
        <source>tesselor cannot show its window: no display is available.</source>
        <translation>tesselor nemůže zobrazit okno: není dostupná žádná obrazovka.</translation>
    </message>
    <message>
        <source>tesselor cannot show its window: Qt&apos;s plugin for Wayland is missing. It is in the package %1.</source>
        <extracomment>%1: a name such as qt6-wayland</extracomment>
        <translation>tesselor nemůže zobrazit okno: chybí zásuvný modul Qt pro Wayland. Najdete ho v balíčku %1.</translation>
    </message>
</context>
</TS>

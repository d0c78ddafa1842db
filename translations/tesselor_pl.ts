<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl">
<context>
    <name>Tesselor</name>
    <message>
        <source>&quot;%1&quot; cannot be opened.</source>
        <translation>Nie można otworzyć pliku „%1”.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; needs more memory than is available.</source>
        <translation>Plik „%1” wymaga więcej pamięci, niż jest dostępne.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a picture the game can read.</source>
        <translation>„%1” nie jest obrazem, który gra potrafi odczytać.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is %2 x %3 pixels; a skin has 3 x 13 cells, so it has at least 3 x 13 pixels.</source>
        <translation>Obraz „%1” ma wymiary %2 × %3 pikseli; skórka składa się z 3 × 13 pól, więc musi mieć co najmniej 3 × 13 pikseli.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is %2 x %3 pixels; a skin has at most 16 million pixels.</source>
        <translation>Obraz „%1” ma wymiary %2 × %3 pikseli; skórka może mieć najwyżej 16 milionów pikseli.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was not found.</source>
        <translation>Nie znaleziono pliku „%1”.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is larger than 64 megabytes, the most a skin may have.</source>
        <translation>Plik „%1” jest za duży; skórka może mieć najwyżej 64 megabajty.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; takes too long to read.</source>
        <translation>Wczytywanie pliku „%1” trwa zbyt długo.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is damaged or incomplete.</source>
        <translation>Plik „%1” jest uszkodzony lub niekompletny.</translation>
    </message>
    <message>
        <source>levels and skins</source>
        <translation>poziomy i skórki</translation>
    </message>
    <message>
        <source>help</source>
        <translation>pomoc</translation>
    </message>
    <message>
        <source>high scores</source>
        <translation>najlepsze wyniki</translation>
    </message>
    <message>
        <source>practice</source>
        <translation>Trening</translation>
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
        <translation>Ekspert</translation>
    </message>
    <message>
        <source>master</source>
        <translation>Mistrz</translation>
    </message>
    <message>
        <source>Skin %1</source>
        <translation>Skórka %1</translation>
    </message>
    <message>
        <source> select level</source>
        <translation>Wybierz poziom</translation>
    </message>
    <message>
        <source>select skin</source>
        <translation>Wybierz skórkę</translation>
    </message>
    <message>
        <source>for more skins</source>
        <translation>Więcej skórek:</translation>
    </message>
    <message>
        <source>Opens the rules of the game</source>
        <translation>Otwiera zasady gry</translation>
    </message>
    <message>
        <source>Plays a game by itself</source>
        <translation>Uruchamia grę pokazową</translation>
    </message>
    <message>
        <source>Eraser: lock it over a card to remove that card</source>
        <translation>Gumka: połóż ją na karcie, aby tę kartę usunąć</translation>
    </message>
    <message>
        <source>Move the card: arrow keys or mouse</source>
        <translation>Przesuń kartę: strzałki lub mysz</translation>
    </message>
    <message>
        <source>Lock the card: space bar or left mouse button</source>
        <translation>Połóż kartę: spacja lub lewy przycisk myszy</translation>
    </message>
    <message>
        <source>Pause and resume: P or right mouse button</source>
        <translation>Pauza i wznowienie: P lub prawy przycisk myszy</translation>
    </message>
    <message>
        <source>move card</source>
        <translation>Przesuń</translation>
    </message>
    <message>
        <source>lock card</source>
        <translation>Połóż</translation>
    </message>
    <message>
        <source>pause/resume</source>
        <translation>Pauza/wznów</translation>
    </message>
    <message>
        <source>arrow keys</source>
        <translation>Strzałki</translation>
    </message>
    <message>
        <source>space</source>
        <translation>Spacja</translation>
    </message>
    <message>
        <source>active card      </source>
        <translation>Aktywna karta</translation>
    </message>
    <message>
        <source>erasor</source>
        <translation>Gumka</translation>
    </message>
    <message>
        <source>more</source>
        <translation>Opis</translation>
    </message>
    <message>
        <source>demo</source>
        <translation>Demo</translation>
    </message>
    <message>
        <source>Start a new game</source>
        <translation>Nowa gra</translation>
    </message>
    <message>
        <source>Choose a level and a skin</source>
        <translation>Wybierz poziom i skórkę</translation>
    </message>
    <message>
        <source>How to play</source>
        <translation>Jak grać</translation>
    </message>
    <message>
        <source>High Score </source>
        <translation>Najlepsze wyniki</translation>
    </message>
    <message>
        <source>Read the rules</source>
        <translation>Przeczytaj zasady</translation>
    </message>
    <message>
        <source>play</source>
        <translation>graj</translation>
    </message>
    <message>
        <source>menu</source>
        <translation>menu</translation>
    </message>
    <message>
        <source>score</source>
        <comment>button of the high-score table</comment>
        <translation>Najlepsze wyniki</translation>
    </message>
    <message>
        <source>Starts a new game</source>
        <translation>Rozpoczyna nową grę</translation>
    </message>
    <message>
        <source>How the game is played</source>
        <translation>Wyjaśnia, jak grać</translation>
    </message>
    <message>
        <source>The four best games</source>
        <translation>Cztery najlepsze wyniki</translation>
    </message>
    <message>
        <source>Enter Your Name</source>
        <translation>Wpisz swoje imię</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Place %1: empty</source>
        <translation>Miejsce %1: puste</translation>
    </message>
    <message>
        <source>Place %1: %2, score %3, %4</source>
        <comment>place, player, score, date</comment>
        <translation>Miejsce %1: %2, wynik %3, %4</translation>
    </message>
    <message>
        <source>no name</source>
        <translation>bez imienia</translation>
    </message>
    <message>
        <source>name</source>
        <translation>Imię</translation>
    </message>
    <message>
        <source>date</source>
        <translation>Data</translation>
    </message>
    <message>
        <source>score</source>
        <translation>Wynik</translation>
    </message>
    <message>
        <source>submit your high score</source>
        <translation>Wyślij swój wynik:</translation>
    </message>
    <message>
        <source>Exit </source>
        <translation>Zakończ</translation>
    </message>
    <message>
        <source>exit</source>
        <translation>zakończ</translation>
    </message>
    <message>
        <source>Ends the program</source>
        <translation>Zamyka program</translation>
    </message>
    <message>
        <source>minimise</source>
        <translation>minimalizuj</translation>
    </message>
    <message>
        <source>Score %1</source>
        <translation>Wynik: %1</translation>
    </message>
    <message numerus="yes">
        <source>%n card(s) left</source>
        <translation>
            <numerusform>Pozostała %n karta</numerusform>
            <numerusform>Pozostały %n karty</numerusform>
            <numerusform>Pozostało %n kart</numerusform>
        </translation>
    </message>
    <message>
        <source>Time used</source>
        <translation>Wykorzystany czas</translation>
    </message>
    <message>
        <source>Come and compete online at </source>
        <translation>Zmierz się z innymi online:</translation>
    </message>
    <message>
        <source>CARDS LEFT</source>
        <translation>ZOSTAŁO KART</translation>
    </message>
    <message>
        <source>SCORE</source>
        <translation>WYNIK</translation>
    </message>
    <message>
        <source>next card</source>
        <translation>Następna</translation>
    </message>
    <message>
        <source>The recording could not be written to %1.</source>
        <translation>Nie udało się zapisać nagrania w pliku %1.</translation>
    </message>
    <message>
        <source>Line up cards by : color, shape, quantity or series <byte value="xd"/>
1,2,3,4. For high score make multiple combinations</source>
        <translation>Układaj linie o wspólnej cesze: kolor, kształt, liczba, seria 1–4. Więcej cech to więcej punktów!</translation>
    </message>
    <message>
        <source>The rules of the game</source>
        <translation>Zasady gry</translation>
    </message>
    <message>
        <source>Time is up: locked in row %1, column %2.</source>
        <translation>Czas minął: karta w wierszu %1, kolumnie %2.</translation>
    </message>
    <message>
        <source>Time is up.</source>
        <translation>Czas minął.</translation>
    </message>
    <message numerus="yes">
        <source>Line scored: %Ln point(s).</source>
        <translation>
            <numerusform>Linia: %Ln punkt.</numerusform>
            <numerusform>Linia: %Ln punkty.</numerusform>
            <numerusform>Linia: %Ln punktów.</numerusform>
        </translation>
    </message>
    <message>
        <source>Game over. %1.</source>
        <translation>Koniec gry. %1.</translation>
    </message>
    <message>
        <source>Are You Sure You want To Replace This Skin !</source>
        <translation>Czy na pewno zastąpić tę skórkę?</translation>
    </message>
    <message>
        <source>No skins were found. A skin is a picture of 3 x 13 cards; put one in %1.</source>
        <translation>Nie znaleziono żadnych skórek. Skórka to obraz z kartami w układzie 3 × 13; umieść taki w folderze %1.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be written into %2.</source>
        <comment>file, folder</comment>
        <translation>Nie udało się zapisać „%1” w folderze %2.</translation>
    </message>
    <message>
        <source>Paused.</source>
        <translation>Pauza.</translation>
    </message>
    <message>
        <source>Game resumed.</source>
        <translation>Gra wznowiona.</translation>
    </message>
    <message>
        <source>A quarter of the time bar is left.</source>
        <translation>Została jedna czwarta czasu.</translation>
    </message>
    <message>
        <source>covered</source>
        <comment>cell of the board</comment>
        <translation>zakryte</translation>
    </message>
    <message>
        <source>empty</source>
        <comment>cell of the board</comment>
        <translation>puste</translation>
    </message>
    <message>
        <source>%1, active card</source>
        <comment>a card</comment>
        <translation>%1, aktywna karta</translation>
    </message>
    <message>
        <source>%1, active card, over %2</source>
        <comment>two cards</comment>
        <translation>%1, aktywna karta, pod nią %2</translation>
    </message>
    <message>
        <source>over %2, active card %1</source>
        <comment>two cards</comment>
        <translation>pod spodem %2, aktywna karta %1</translation>
    </message>
    <message>
        <source>eraser</source>
        <translation>gumka</translation>
    </message>
    <message>
        <source>shape %1, colour %2, quantity %3</source>
        <translation>kształt %1, kolor %2, liczba %3</translation>
    </message>
    <message>
        <source>Row %1, column %2: %3</source>
        <translation>Wiersz %1, kolumna %2: %3</translation>
    </message>
    <message>
        <source>Next card: none</source>
        <translation>Następna karta: brak</translation>
    </message>
    <message>
        <source>Next card: %1</source>
        <translation>Następna karta: %1</translation>
    </message>
    <message>
        <source>Board, level %1, paused</source>
        <translation>Plansza, poziom %1, pauza</translation>
    </message>
    <message>
        <source>Board, level %1</source>
        <translation>Plansza, poziom %1</translation>
    </message>
    <message>
        <source>empty, drop a picture here for a new skin</source>
        <comment>slot of the menu</comment>
        <translation>puste, upuść tu obraz, aby dodać skórkę</translation>
    </message>
    <message>
        <source>Important notice!</source>
        <translation>Ważna informacja!</translation>
    </message>
    <message>
        <source>This application works with small fonts only</source>
        <translation>Ten program działa tylko z małymi czcionkami</translation>
    </message>
    <message>
        <source>Please change your system to &quot;Small Fonts&quot;</source>
        <translation>Zmień ustawienie systemu na „Małe czcionki”</translation>
    </message>
    <message>
        <source>in the Windows Setting System</source>
        <translation>w ustawieniach systemu Windows</translation>
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
        <translation>Użycie: tesselor [opcje]
Karciana łamigłówka dla jednego gracza.

  -h, --help     pokazuje tę pomoc i kończy działanie
  -v, --version  pokazuje wersję i kończy działanie
      --scale N  powiększa okno N razy, od 1 do 4, na przykład 1.5

Działają też opcje Qt, na przykład -platform. Zmienna TESSELOR_HOME wskazuje
inny folder skórek, tekstu zasad i plików dźwiękowych.
</translation>
    </message>
    <message>
        <source>tesselor: --scale takes a number from 1 to 4, such as 1.5, not &quot;%1&quot;.</source>
        <translation>tesselor: opcja --scale wymaga liczby od 1 do 4, na przykład 1.5, a nie „%1”.</translation>
    </message>
    <message>
        <source>tesselor cannot show its window: no display is available.</source>
        <translation>tesselor nie może wyświetlić okna: brak dostępnego ekranu.</translation>
    </message>
    <message>
        <source>tesselor cannot show its window: Qt&apos;s plugin for Wayland is missing. It is in the package %1.</source>
        <extracomment>%1: a name such as qt6-wayland</extracomment>
        <translation>tesselor nie może wyświetlić okna: brakuje wtyczki Qt dla Waylanda. Znajduje się ona w pakiecie %1.</translation>
    </message>
</context>
</TS>

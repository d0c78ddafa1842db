<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="uk">
<context>
    <name>Tesselor</name>
    <message>
        <source>&quot;%1&quot; cannot be opened.</source>
        <translation>Не вдалося відкрити «%1».</translation>
    </message>
    <message>
        <source>&quot;%1&quot; needs more memory than is available.</source>
        <translation>Для «%1» не вистачає пам’яті.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a picture the game can read.</source>
        <translation>Не вдалося прочитати «%1» як картинку.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is %2 x %3 pixels; a skin has 3 x 13 cells, so it has at least 3 x 13 pixels.</source>
        <translation>Розмір «%1» — %2 × %3 пікселів, а в скіні 3 × 13 клітинок, тобто щонайменше 3 × 13 пікселів.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is %2 x %3 pixels; a skin has at most 16 million pixels.</source>
        <translation>Розмір «%1» — %2 × %3 пікселів, а в скіні може бути щонайбільше 16 мільйонів пікселів.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was not found.</source>
        <translation>Файл «%1» не знайдено.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is larger than 64 megabytes, the most a skin may have.</source>
        <translation>Файл «%1» більший за 64 мегабайти, а це межа для скіна.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; takes too long to read.</source>
        <translation>Файл «%1» читається надто довго.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is damaged or incomplete.</source>
        <translation>Файл «%1» пошкоджений або неповний.</translation>
    </message>
    <message>
        <source>levels and skins</source>
        <translation>Рівні та скіни</translation>
    </message>
    <message>
        <source>help</source>
        <translation>Допомога</translation>
    </message>
    <message>
        <source>high scores</source>
        <translation>Рекорди</translation>
    </message>
    <message>
        <source>practice</source>
        <translation>Розминка</translation>
    </message>
    <message>
        <source>junior</source>
        <translation>Новачок</translation>
    </message>
    <message>
        <source>senior</source>
        <translation>Аматор</translation>
    </message>
    <message>
        <source>expert</source>
        <translation>Експерт</translation>
    </message>
    <message>
        <source>master</source>
        <translation>Майстер</translation>
    </message>
    <message>
        <source>Skin %1</source>
        <translation>Скін %1</translation>
    </message>
    <message>
        <source> select level</source>
        <translation>Вибір рівня</translation>
    </message>
    <message>
        <source>select skin</source>
        <translation>Вибір скіна</translation>
    </message>
    <message>
        <source>for more skins</source>
        <translation>Більше скінів:</translation>
    </message>
    <message>
        <source>Opens the rules of the game</source>
        <translation>Відкриває правила гри</translation>
    </message>
    <message>
        <source>Plays a game by itself</source>
        <translation>Комп’ютер грає сам</translation>
    </message>
    <message>
        <source>Eraser: lock it over a card to remove that card</source>
        <translation>Гумка: покладіть її на картку, щоб прибрати цю картку</translation>
    </message>
    <message>
        <source>Move the card: arrow keys or mouse</source>
        <translation>Рухати картку: стрілки або миша</translation>
    </message>
    <message>
        <source>Lock the card: space bar or left mouse button</source>
        <translation>Покласти картку: пробіл або ліва кнопка миші</translation>
    </message>
    <message>
        <source>Pause and resume: P or right mouse button</source>
        <translation>Пауза й продовження: P або права кнопка миші</translation>
    </message>
    <message>
        <source>move card</source>
        <translation>Рухати</translation>
    </message>
    <message>
        <source>lock card</source>
        <translation>Покласти</translation>
    </message>
    <message>
        <source>pause/resume</source>
        <translation>Пауза</translation>
    </message>
    <message>
        <source>arrow keys</source>
        <translation>стрілки</translation>
    </message>
    <message>
        <source>space</source>
        <translation>пробіл</translation>
    </message>
    <message>
        <source>active card      </source>
        <translation>Активна картка</translation>
    </message>
    <message>
        <source>erasor</source>
        <translation>Гумка</translation>
    </message>
    <message>
        <source>more</source>
        <translation>Ще</translation>
    </message>
    <message>
        <source>demo</source>
        <translation>Демо</translation>
    </message>
    <message>
        <source>Start a new game</source>
        <translation>Почати нову гру</translation>
    </message>
    <message>
        <source>Choose a level and a skin</source>
        <translation>Вибрати рівень і скін</translation>
    </message>
    <message>
        <source>How to play</source>
        <translation>Як грати</translation>
    </message>
    <message>
        <source>High Score </source>
        <translation>Рекорди</translation>
    </message>
    <message>
        <source>Read the rules</source>
        <translation>Прочитати правила</translation>
    </message>
    <message>
        <source>play</source>
        <translation>Грати</translation>
    </message>
    <message>
        <source>menu</source>
        <translation>Меню</translation>
    </message>
    <message>
        <source>score</source>
        <comment>button of the high-score table</comment>
        <translation>Рекорди</translation>
    </message>
    <message>
        <source>Starts a new game</source>
        <translation>Починає нову гру</translation>
    </message>
    <message>
        <source>How the game is played</source>
        <translation>Пояснює, як грати</translation>
    </message>
    <message>
        <source>The four best games</source>
        <translation>Чотири найкращі результати</translation>
    </message>
    <message>
        <source>Enter Your Name</source>
        <translation>Введіть ім’я</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>ОК</translation>
    </message>
    <message>
        <source>Place %1: empty</source>
        <translation>Місце %1: порожньо</translation>
    </message>
    <message>
        <source>Place %1: %2, score %3, %4</source>
        <comment>place, player, score, date</comment>
        <translation>Місце %1: %2, рахунок %3, %4</translation>
    </message>
    <message>
        <source>no name</source>
        <translation>без імені</translation>
    </message>
    <message>
        <source>name</source>
        <translation>Ім’я</translation>
    </message>
    <message>
        <source>date</source>
        <translation>Дата</translation>
    </message>
    <message>
        <source>score</source>
        <translation>Рахунок</translation>
    </message>
    <message>
        <source>submit your high score</source>
        <translation>Надіслати свій рекорд:</translation>
    </message>
    <message>
        <source>Exit </source>
        <translation>Вихід</translation>
    </message>
    <message>
        <source>exit</source>
        <translation>Вихід</translation>
    </message>
    <message>
        <source>Ends the program</source>
        <translation>Закриває гру</translation>
    </message>
    <message>
        <source>minimise</source>
        <translation>Згорнути</translation>
    </message>
    <message>
        <source>Score %1</source>
        <translation>Рахунок %1</translation>
    </message>
    <message numerus="yes">
        <source>%n card(s) left</source>
        <translation>
            <numerusform>Залишилася %n картка</numerusform>
            <numerusform>Залишилося %n картки</numerusform>
            <numerusform>Залишилося %n карток</numerusform>
        </translation>
    </message>
    <message>
        <source>Time used</source>
        <translation>Минуло часу</translation>
    </message>
    <message>
        <source>Come and compete online at </source>
        <translation>Змагайтеся онлайн:</translation>
    </message>
    <message>
        <source>CARDS LEFT</source>
        <translation>ЗАЛИШИЛОСЯ</translation>
    </message>
    <message>
        <source>SCORE</source>
        <translation>РАХУНОК</translation>
    </message>
    <message>
        <source>next card</source>
        <translation>Наступна</translation>
    </message>
    <message>
        <source>The recording could not be written to %1.</source>
        <translation>Не вдалося зберегти запис гри в %1.</translation>
    </message>
    <message>
        <source>Line up cards by : color, shape, quantity or series <byte value="xd"/>
1,2,3,4. For high score make multiple combinations</source>
        <translation>Збирайте лінії: одна форма, один колір, одна кількість чи серія 1, 2, 3, 4. Більше збігів — більше очок.</translation>
    </message>
    <message>
        <source>The rules of the game</source>
        <translation>Правила гри</translation>
    </message>
    <message>
        <source>Time is up: locked in row %1, column %2.</source>
        <translation>Час вийшов: картка лягла в ряд %1, стовпець %2.</translation>
    </message>
    <message>
        <source>Time is up.</source>
        <translation>Час вийшов.</translation>
    </message>
    <message numerus="yes">
        <source>Line scored: %Ln point(s).</source>
        <translation>
            <numerusform>Лінія: %Ln очко.</numerusform>
            <numerusform>Лінія: %Ln очки.</numerusform>
            <numerusform>Лінія: %Ln очок.</numerusform>
        </translation>
    </message>
    <message>
        <source>Game over. %1.</source>
        <translation>Гру завершено. %1.</translation>
    </message>
    <message>
        <source>Are You Sure You want To Replace This Skin !</source>
        <translation>Замінити цей скін?</translation>
    </message>
    <message>
        <source>No skins were found. A skin is a picture of 3 x 13 cards; put one in %1.</source>
        <translation>Скінів не знайдено. Скін — це картинка з 3 × 13 карток; додайте її до теки %1.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be written into %2.</source>
        <comment>file, folder</comment>
        <translation>Не вдалося записати «%1» у %2.</translation>
    </message>
    <message>
        <source>Paused.</source>
        <translation>Пауза.</translation>
    </message>
    <message>
        <source>Game resumed.</source>
        <translation>Гра триває.</translation>
    </message>
    <message>
        <source>A quarter of the time bar is left.</source>
        <translation>Залишилася чверть часу.</translation>
    </message>
    <message>
        <source>covered</source>
        <comment>cell of the board</comment>
        <translation>закрито</translation>
    </message>
    <message>
        <source>empty</source>
        <comment>cell of the board</comment>
        <translation>порожньо</translation>
    </message>
    <message>
        <source>%1, active card</source>
        <comment>a card</comment>
        <translation>%1, активна картка</translation>
    </message>
    <message>
        <source>%1, active card, over %2</source>
        <comment>two cards</comment>
        <translation>%1, активна картка, знизу %2</translation>
    </message>
    <message>
        <source>over %2, active card %1</source>
        <comment>two cards</comment>
        <translation>знизу %2, активна картка %1</translation>
    </message>
    <message>
        <source>eraser</source>
        <translation>гумка</translation>
    </message>
    <message>
        <source>shape %1, colour %2, quantity %3</source>
        <translation>форма %1, колір %2, кількість %3</translation>
    </message>
    <message>
        <source>Row %1, column %2: %3</source>
        <translation>Ряд %1, стовпець %2: %3</translation>
    </message>
    <message>
        <source>Next card: none</source>
        <translation>Наступна картка: немає</translation>
    </message>
    <message>
        <source>Next card: %1</source>
        <translation>Наступна картка: %1</translation>
    </message>
    <message>
        <source>Board, level %1, paused</source>
        <translation>Поле, рівень %1, пауза</translation>
    </message>
    <message>
        <source>Board, level %1</source>
        <translation>Поле, рівень %1</translation>
    </message>
    <message>
        <source>empty, drop a picture here for a new skin</source>
        <comment>slot of the menu</comment>
        <translation>порожньо, перетягніть сюди картинку для нового скіна</translation>
    </message>
    <message>
        <source>Important notice!</source>
        <translation>Важливо!</translation>
    </message>
    <message>
        <source>This application works with small fonts only</source>
        <translation>Гра працює лише з дрібним шрифтом</translation>
    </message>
    <message>
        <source>Please change your system to &quot;Small Fonts&quot;</source>
        <translation>Виберіть розмір «Дрібний шрифт»</translation>
    </message>
    <message>
        <source>in the Windows Setting System</source>
        <translation>у налаштуваннях екрана Windows</translation>
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
        <translation>Користування: tesselor [параметри]
Карткова головоломка для одного гравця.

  -h, --help     показати цю довідку й вийти
  -v, --version  показати версію й вийти
      --scale N  збільшити вікно в N разів, від 1 до 4, наприклад 1.5

Можна вказувати й параметри Qt, наприклад -platform. Змінна TESSELOR_HOME задає
іншу теку для скінів, правил і звуків.
</translation>
    </message>
    <message>
        <source>tesselor: --scale takes a number from 1 to 4, such as 1.5, not &quot;%1&quot;.</source>
        <translation>tesselor: параметр --scale приймає число від 1 до 4, наприклад 1.5, а не «%1».</translation>
    </message>
    <message>
        <source>tesselor cannot show its window: no display is available.</source>
        <translation>tesselor не може показати вікно: немає доступного дисплея.</translation>
    </message>
    <message>
        <source>tesselor cannot show its window: Qt&apos;s plugin for Wayland is missing. It is in the package %1.</source>
        <extracomment>%1: a name such as qt6-wayland</extracomment>
        <translation>tesselor не може показати вікно: бракує плагіна Qt для Wayland. Він міститься в пакунку %1.</translation>
    </message>
</context>
</TS>

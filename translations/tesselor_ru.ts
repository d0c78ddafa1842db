<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru">
<context>
    <name>Tesselor</name>
    <message>
        <source>&quot;%1&quot; cannot be opened.</source>
        <translation>Не удалось открыть «%1».</translation>
    </message>
    <message>
        <source>&quot;%1&quot; needs more memory than is available.</source>
        <translation>Для «%1» не хватает памяти.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a picture the game can read.</source>
        <translation>Не удалось прочитать «%1» как картинку.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is %2 x %3 pixels; a skin has 3 x 13 cells, so it has at least 3 x 13 pixels.</source>
        <translation>Размер «%1» — %2 × %3 пикселей, а в скине 3 × 13 клеток, то есть не меньше 3 × 13 пикселей.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is %2 x %3 pixels; a skin has at most 16 million pixels.</source>
        <translation>Размер «%1» — %2 × %3 пикселей, а в скине может быть не больше 16 миллионов пикселей.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was not found.</source>
        <translation>Файл «%1» не найден.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is larger than 64 megabytes, the most a skin may have.</source>
        <translation>Файл «%1» больше 64 мегабайт, а это предел для скина.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; takes too long to read.</source>
        <translation>Файл «%1» читается слишком долго.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is damaged or incomplete.</source>
        <translation>Файл «%1» повреждён или неполон.</translation>
    </message>
    <message>
        <source>levels and skins</source>
        <translation>Уровни и скины</translation>
    </message>
    <message>
        <source>help</source>
        <translation>Помощь</translation>
    </message>
    <message>
        <source>high scores</source>
        <translation>Рекорды</translation>
    </message>
    <message>
        <source>practice</source>
        <translation>Разминка</translation>
    </message>
    <message>
        <source>junior</source>
        <translation>Новичок</translation>
    </message>
    <message>
        <source>senior</source>
        <translation>Любитель</translation>
    </message>
    <message>
        <source>expert</source>
        <translation>Эксперт</translation>
    </message>
    <message>
        <source>master</source>
        <translation>Мастер</translation>
    </message>
    <message>
        <source>Skin %1</source>
        <translation>Скин %1</translation>
    </message>
    <message>
        <source> select level</source>
        <translation>Выбор уровня</translation>
    </message>
    <message>
        <source>select skin</source>
        <translation>Выбор скина</translation>
    </message>
    <message>
        <source>for more skins</source>
        <translation>Больше скинов:</translation>
    </message>
    <message>
        <source>Opens the rules of the game</source>
        <translation>Открывает правила игры</translation>
    </message>
    <message>
        <source>Plays a game by itself</source>
        <translation>Компьютер играет сам</translation>
    </message>
    <message>
        <source>Eraser: lock it over a card to remove that card</source>
        <translation>Ластик: положите его на карту, чтобы убрать её</translation>
    </message>
    <message>
        <source>Move the card: arrow keys or mouse</source>
        <translation>Двигать карту: стрелки или мышь</translation>
    </message>
    <message>
        <source>Lock the card: space bar or left mouse button</source>
        <translation>Положить карту: пробел или левая кнопка мыши</translation>
    </message>
    <message>
        <source>Pause and resume: P or right mouse button</source>
        <translation>Пауза и продолжение: P или правая кнопка мыши</translation>
    </message>
    <message>
        <source>move card</source>
        <translation>Двигать</translation>
    </message>
    <message>
        <source>lock card</source>
        <translation>Положить</translation>
    </message>
    <message>
        <source>pause/resume</source>
        <translation>Пауза</translation>
    </message>
    <message>
        <source>arrow keys</source>
        <translation>стрелки</translation>
    </message>
    <message>
        <source>space</source>
        <translation>пробел</translation>
    </message>
    <message>
        <source>active card      </source>
        <translation>Текущая карта</translation>
    </message>
    <message>
        <source>erasor</source>
        <translation>Ластик</translation>
    </message>
    <message>
        <source>more</source>
        <translation>Ещё</translation>
    </message>
    <message>
        <source>demo</source>
        <translation>Демо</translation>
    </message>
    <message>
        <source>Start a new game</source>
        <translation>Начать новую игру</translation>
    </message>
    <message>
        <source>Choose a level and a skin</source>
        <translation>Выбрать уровень и скин</translation>
    </message>
    <message>
        <source>How to play</source>
        <translation>Как играть</translation>
    </message>
    <message>
        <source>High Score </source>
        <translation>Рекорды</translation>
    </message>
    <message>
        <source>Read the rules</source>
        <translation>Прочитать правила</translation>
    </message>
    <message>
        <source>play</source>
        <translation>Играть</translation>
    </message>
    <message>
        <source>menu</source>
        <translation>Меню</translation>
    </message>
    <message>
        <source>score</source>
        <comment>button of the high-score table</comment>
        <translation>Рекорды</translation>
    </message>
    <message>
        <source>Starts a new game</source>
        <translation>Начинает новую игру</translation>
    </message>
    <message>
        <source>How the game is played</source>
        <translation>Объясняет, как играть</translation>
    </message>
    <message>
        <source>The four best games</source>
        <translation>Четыре лучших результата</translation>
    </message>
    <message>
        <source>Enter Your Name</source>
        <translation>Введите имя</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>ОК</translation>
    </message>
    <message>
        <source>Place %1: empty</source>
        <translation>Место %1: пусто</translation>
    </message>
    <message>
        <source>Place %1: %2, score %3, %4</source>
        <comment>place, player, score, date</comment>
        <translation>Место %1: %2, счёт %3, %4</translation>
    </message>
    <message>
        <source>no name</source>
        <translation>без имени</translation>
    </message>
    <message>
        <source>name</source>
        <translation>Имя</translation>
    </message>
    <message>
        <source>date</source>
        <translation>Дата</translation>
    </message>
    <message>
        <source>score</source>
        <translation>Счёт</translation>
    </message>
    <message>
        <source>submit your high score</source>
        <translation>Отправить свой рекорд:</translation>
    </message>
    <message>
        <source>Exit </source>
        <translation>Выход</translation>
    </message>
    <message>
        <source>exit</source>
        <translation>Выход</translation>
    </message>
    <message>
        <source>Ends the program</source>
        <translation>Закрывает игру</translation>
    </message>
    <message>
        <source>minimise</source>
        <translation>Свернуть</translation>
    </message>
    <message>
        <source>Score %1</source>
        <translation>Счёт %1</translation>
    </message>
    <message numerus="yes">
        <source>%n card(s) left</source>
        <translation>
            <numerusform>Осталась %n карта</numerusform>
            <numerusform>Осталось %n карты</numerusform>
            <numerusform>Осталось %n карт</numerusform>
        </translation>
    </message>
    <message>
        <source>Time used</source>
        <translation>Прошло времени</translation>
    </message>
    <message>
        <source>Come and compete online at </source>
        <translation>Соревнуйтесь онлайн:</translation>
    </message>
    <message>
        <source>CARDS LEFT</source>
        <translation>ОСТАЛОСЬ КАРТ</translation>
    </message>
    <message>
        <source>SCORE</source>
        <translation>СЧЁТ</translation>
    </message>
    <message>
        <source>next card</source>
        <translation>Следующая</translation>
    </message>
    <message>
        <source>The recording could not be written to %1.</source>
        <translation>Не удалось сохранить запись игры в %1.</translation>
    </message>
    <message>
        <source>Line up cards by : color, shape, quantity or series <byte value="xd"/>
1,2,3,4. For high score make multiple combinations</source>
        <translation>Собирайте линии: одна форма, один цвет, одно число или серия 1, 2, 3, 4. Больше совпадений — больше очков.</translation>
    </message>
    <message>
        <source>The rules of the game</source>
        <translation>Правила игры</translation>
    </message>
    <message>
        <source>Time is up: locked in row %1, column %2.</source>
        <translation>Время вышло: карта легла в ряд %1, столбец %2.</translation>
    </message>
    <message>
        <source>Time is up.</source>
        <translation>Время вышло.</translation>
    </message>
    <message numerus="yes">
        <source>Line scored: %Ln point(s).</source>
        <translation>
            <numerusform>Линия: %Ln очко.</numerusform>
            <numerusform>Линия: %Ln очка.</numerusform>
            <numerusform>Линия: %Ln очков.</numerusform>
        </translation>
    </message>
    <message>
        <source>Game over. %1.</source>
        <translation>Игра окончена. %1.</translation>
    </message>
    <message>
        <source>Are You Sure You want To Replace This Skin !</source>
        <translation>Заменить этот скин?</translation>
    </message>
    <message>
        <source>No skins were found. A skin is a picture of 3 x 13 cards; put one in %1.</source>
        <translation>Скины не найдены. Скин — это картинка из 3 × 13 карт; добавьте её в папку %1.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be written into %2.</source>
        <comment>file, folder</comment>
        <translation>Не удалось записать «%1» в %2.</translation>
    </message>
    <message>
        <source>Paused.</source>
        <translation>Пауза.</translation>
    </message>
    <message>
        <source>Game resumed.</source>
        <translation>Игра продолжается.</translation>
    </message>
    <message>
        <source>A quarter of the time bar is left.</source>
        <translation>Осталась четверть времени.</translation>
    </message>
    <message>
        <source>covered</source>
        <comment>cell of the board</comment>
        <translation>закрыто</translation>
    </message>
    <message>
        <source>empty</source>
        <comment>cell of the board</comment>
        <translation>пусто</translation>
    </message>
    <message>
        <source>%1, active card</source>
        <comment>a card</comment>
        <translation>%1, текущая карта</translation>
    </message>
    <message>
        <source>%1, active card, over %2</source>
        <comment>two cards</comment>
        <translation>%1, текущая карта, снизу %2</translation>
    </message>
    <message>
        <source>over %2, active card %1</source>
        <comment>two cards</comment>
        <translation>снизу %2, текущая карта %1</translation>
    </message>
    <message>
        <source>eraser</source>
        <translation>ластик</translation>
    </message>
    <message>
        <source>shape %1, colour %2, quantity %3</source>
        <translation>форма %1, цвет %2, число %3</translation>
    </message>
    <message>
        <source>Row %1, column %2: %3</source>
        <translation>Ряд %1, столбец %2: %3</translation>
    </message>
    <message>
        <source>Next card: none</source>
        <translation>Следующая карта: нет</translation>
    </message>
    <message>
        <source>Next card: %1</source>
        <translation>Следующая карта: %1</translation>
    </message>
    <message>
        <source>Board, level %1, paused</source>
        <translation>Поле, уровень %1, пауза</translation>
    </message>
    <message>
        <source>Board, level %1</source>
        <translation>Поле, уровень %1</translation>
    </message>
    <message>
        <source>empty, drop a picture here for a new skin</source>
        <comment>slot of the menu</comment>
        <translation>пусто, перетащите сюда картинку для нового скина</translation>
    </message>
    <message>
        <source>Important notice!</source>
        <translation>Важно!</translation>
    </message>
    <message>
        <source>This application works with small fonts only</source>
        <translation>Игра работает только с мелким шрифтом</translation>
    </message>
    <message>
        <source>Please change your system to &quot;Small Fonts&quot;</source>
        <translation>Выберите размер «Мелкий шрифт»</translation>
    </message>
    <message>
        <source>in the Windows Setting System</source>
        <translation>в настройках экрана Windows</translation>
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
        <translation>Использование: tesselor [параметры]
Карточная головоломка для одного игрока.

  -h, --help     показать эту справку и выйти
  -v, --version  показать версию и выйти
      --scale N  увеличить окно в N раз, от 1 до 4, например 1.5

Можно указывать и параметры Qt, например -platform. Переменная TESSELOR_HOME
задаёт другую папку для скинов, правил и звуков.
</translation>
    </message>
    <message>
        <source>tesselor: --scale takes a number from 1 to 4, such as 1.5, not &quot;%1&quot;.</source>
        <translation>tesselor: параметр --scale принимает число от 1 до 4, например 1.5, а не «%1».</translation>
    </message>
    <message>
        <source>tesselor cannot show its window: no display is available.</source>
        <translation>tesselor не может показать окно: нет доступного дисплея.</translation>
    </message>
    <message>
        <source>tesselor cannot show its window: Qt&apos;s plugin for Wayland is missing. It is in the package %1.</source>
        <extracomment>%1: a name such as qt6-wayland</extracomment>
        <translation>tesselor не может показать окно: отсутствует плагин Qt для Wayland. Он находится в пакете %1.</translation>
    </message>
</context>
</TS>

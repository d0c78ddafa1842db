<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN">
<context>
    <name>Tesselor</name>
    <message>
        <source>&quot;%1&quot; cannot be opened.</source>
        <translation>无法打开“%1”。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; needs more memory than is available.</source>
        <translation>内存不足，无法读取“%1”。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a picture the game can read.</source>
        <translation>“%1”不是游戏支持的图片。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is %2 x %3 pixels; a skin has 3 x 13 cells, so it has at least 3 x 13 pixels.</source>
        <translation>“%1”为 %2 × %3 像素；皮肤有 3 × 13 格，至少需要 3 × 13 像素。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is %2 x %3 pixels; a skin has at most 16 million pixels.</source>
        <translation>“%1”为 %2 × %3 像素；皮肤不能超过 1600 万像素。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was not found.</source>
        <translation>找不到“%1”。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is larger than 64 megabytes, the most a skin may have.</source>
        <translation>“%1”超过 64 MB；皮肤不能超过 64 MB。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; takes too long to read.</source>
        <translation>读取“%1”用时过长。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is damaged or incomplete.</source>
        <translation>“%1”已损坏或不完整。</translation>
    </message>
    <message>
        <source>levels and skins</source>
        <translation>难度和皮肤</translation>
    </message>
    <message>
        <source>help</source>
        <translation>帮助</translation>
    </message>
    <message>
        <source>high scores</source>
        <translation>高分榜</translation>
    </message>
    <message>
        <source>practice</source>
        <translation>练习</translation>
    </message>
    <message>
        <source>junior</source>
        <translation>初级</translation>
    </message>
    <message>
        <source>senior</source>
        <translation>中级</translation>
    </message>
    <message>
        <source>expert</source>
        <translation>高级</translation>
    </message>
    <message>
        <source>master</source>
        <translation>大师</translation>
    </message>
    <message>
        <source>Skin %1</source>
        <translation>皮肤：%1</translation>
    </message>
    <message>
        <source> select level</source>
        <translation>选择难度</translation>
    </message>
    <message>
        <source>select skin</source>
        <translation>选择皮肤</translation>
    </message>
    <message>
        <source>for more skins</source>
        <translation>更多皮肤</translation>
    </message>
    <message>
        <source>Opens the rules of the game</source>
        <translation>打开游戏规则</translation>
    </message>
    <message>
        <source>Plays a game by itself</source>
        <translation>自动演示一局游戏</translation>
    </message>
    <message>
        <source>Eraser: lock it over a card to remove that card</source>
        <translation>橡皮擦：放在一张卡牌上，即可擦除那张卡牌</translation>
    </message>
    <message>
        <source>Move the card: arrow keys or mouse</source>
        <translation>移动卡牌：方向键或鼠标</translation>
    </message>
    <message>
        <source>Lock the card: space bar or left mouse button</source>
        <translation>放置卡牌：空格键或鼠标左键</translation>
    </message>
    <message>
        <source>Pause and resume: P or right mouse button</source>
        <translation>暂停和继续：P 键或鼠标右键</translation>
    </message>
    <message>
        <source>move card</source>
        <translation>移动卡牌</translation>
    </message>
    <message>
        <source>lock card</source>
        <translation>放置卡牌</translation>
    </message>
    <message>
        <source>pause/resume</source>
        <translation>暂停/继续</translation>
    </message>
    <message>
        <source>arrow keys</source>
        <translation>方向键</translation>
    </message>
    <message>
        <source>space</source>
        <translation>空格</translation>
    </message>
    <message>
        <source>active card      </source>
        <translation>当前卡牌</translation>
    </message>
    <message>
        <source>erasor</source>
        <translation>橡皮擦</translation>
    </message>
    <message>
        <source>more</source>
        <translation>规则</translation>
    </message>
    <message>
        <source>demo</source>
        <translation>演示</translation>
    </message>
    <message>
        <source>Start a new game</source>
        <translation>开始新游戏</translation>
    </message>
    <message>
        <source>Choose a level and a skin</source>
        <translation>选择难度和皮肤</translation>
    </message>
    <message>
        <source>How to play</source>
        <translation>玩法</translation>
    </message>
    <message>
        <source>High Score </source>
        <translation>高分榜</translation>
    </message>
    <message>
        <source>Read the rules</source>
        <translation>阅读规则</translation>
    </message>
    <message>
        <source>play</source>
        <translation>开始</translation>
    </message>
    <message>
        <source>menu</source>
        <translation>菜单</translation>
    </message>
    <message>
        <source>score</source>
        <comment>button of the high-score table</comment>
        <translation>高分榜</translation>
    </message>
    <message>
        <source>Starts a new game</source>
        <translation>开始一局新游戏</translation>
    </message>
    <message>
        <source>How the game is played</source>
        <translation>介绍游戏的玩法</translation>
    </message>
    <message>
        <source>The four best games</source>
        <translation>得分最高的四局</translation>
    </message>
    <message>
        <source>Enter Your Name</source>
        <translation>请输入名字</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Place %1: empty</source>
        <translation>第 %1 名：空缺</translation>
    </message>
    <message>
        <source>Place %1: %2, score %3, %4</source>
        <comment>place, player, score, date</comment>
        <translation>第 %1 名：%2，得分 %3，%4</translation>
    </message>
    <message>
        <source>no name</source>
        <translation>无名</translation>
    </message>
    <message>
        <source>name</source>
        <translation>名字</translation>
    </message>
    <message>
        <source>date</source>
        <translation>日期</translation>
    </message>
    <message>
        <source>score</source>
        <translation>得分</translation>
    </message>
    <message>
        <source>submit your high score</source>
        <translation>提交你的高分</translation>
    </message>
    <message>
        <source>Exit </source>
        <translation>退出</translation>
    </message>
    <message>
        <source>exit</source>
        <translation>退出</translation>
    </message>
    <message>
        <source>Ends the program</source>
        <translation>退出程序</translation>
    </message>
    <message>
        <source>minimise</source>
        <translation>最小化</translation>
    </message>
    <message>
        <source>Score %1</source>
        <translation>得分 %1</translation>
    </message>
    <message numerus="yes">
        <source>%n card(s) left</source>
        <translation>
            <numerusform>剩余 %n 张</numerusform>
        </translation>
    </message>
    <message>
        <source>Time used</source>
        <translation>已用时间</translation>
    </message>
    <message>
        <source>Come and compete online at </source>
        <translation>欢迎在线比拼</translation>
    </message>
    <message>
        <source>CARDS LEFT</source>
        <translation>剩余卡牌</translation>
    </message>
    <message>
        <source>SCORE</source>
        <translation>得分</translation>
    </message>
    <message>
        <source>next card</source>
        <translation>下一张</translation>
    </message>
    <message>
        <source>The recording could not be written to %1.</source>
        <translation>无法将游戏记录写入 %1。</translation>
    </message>
    <message>
        <source>Line up cards by : color, shape, quantity or series <byte value="xd"/>
1,2,3,4. For high score make multiple combinations</source>
        <translation>把形状、颜色或数量相同，或按 1、2、3、4 排列的四张卡牌连成一线。共同点越多，得分越高。</translation>
    </message>
    <message>
        <source>The rules of the game</source>
        <translation>游戏规则</translation>
    </message>
    <message>
        <source>Time is up: locked in row %1, column %2.</source>
        <translation>时间到，放在 %1 行 %2 列。</translation>
    </message>
    <message>
        <source>Time is up.</source>
        <translation>时间到。</translation>
    </message>
    <message numerus="yes">
        <source>Line scored: %Ln point(s).</source>
        <translation>
            <numerusform>连线得 %Ln 分。</numerusform>
        </translation>
    </message>
    <message>
        <source>Game over. %1.</source>
        <translation>游戏结束。%1。</translation>
    </message>
    <message>
        <source>Are You Sure You want To Replace This Skin !</source>
        <translation>确定要替换这个皮肤吗？</translation>
    </message>
    <message>
        <source>No skins were found. A skin is a picture of 3 x 13 cards; put one in %1.</source>
        <translation>找不到皮肤。皮肤是由 3 × 13 张卡牌组成的图片，请放入 %1。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be written into %2.</source>
        <comment>file, folder</comment>
        <translation>无法将“%1”写入 %2。</translation>
    </message>
    <message>
        <source>Paused.</source>
        <translation>已暂停。</translation>
    </message>
    <message>
        <source>Game resumed.</source>
        <translation>继续。</translation>
    </message>
    <message>
        <source>A quarter of the time bar is left.</source>
        <translation>时间还剩四分之一。</translation>
    </message>
    <message>
        <source>covered</source>
        <comment>cell of the board</comment>
        <translation>已隐藏</translation>
    </message>
    <message>
        <source>empty</source>
        <comment>cell of the board</comment>
        <translation>空</translation>
    </message>
    <message>
        <source>%1, active card</source>
        <comment>a card</comment>
        <translation>%1，当前</translation>
    </message>
    <message>
        <source>%1, active card, over %2</source>
        <comment>two cards</comment>
        <translation>%1，当前，压着%2</translation>
    </message>
    <message>
        <source>over %2, active card %1</source>
        <comment>two cards</comment>
        <translation>压着%2，当前%1</translation>
    </message>
    <message>
        <source>eraser</source>
        <translation>橡皮擦</translation>
    </message>
    <message>
        <source>shape %1, colour %2, quantity %3</source>
        <translation>形状 %1，颜色 %2，数量 %3</translation>
    </message>
    <message>
        <source>Row %1, column %2: %3</source>
        <translation>%1 行 %2 列：%3</translation>
    </message>
    <message>
        <source>Next card: none</source>
        <translation>下一张：无</translation>
    </message>
    <message>
        <source>Next card: %1</source>
        <translation>下一张：%1</translation>
    </message>
    <message>
        <source>Board, level %1, paused</source>
        <translation>棋盘，%1难度，已暂停</translation>
    </message>
    <message>
        <source>Board, level %1</source>
        <translation>棋盘，%1难度</translation>
    </message>
    <message>
        <source>empty, drop a picture here for a new skin</source>
        <comment>slot of the menu</comment>
        <translation>空，将图片拖放到此处可添加皮肤</translation>
    </message>
    <message>
        <source>Important notice!</source>
        <translation>重要提示</translation>
    </message>
    <message>
        <source>This application works with small fonts only</source>
        <translation>本程序仅适用于“小字体”</translation>
    </message>
    <message>
        <source>Please change your system to &quot;Small Fonts&quot;</source>
        <translation>请在 Windows 系统设置中</translation>
    </message>
    <message>
        <source>in the Windows Setting System</source>
        <translation>改用“小字体”</translation>
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
        <translation>用法：tesselor [选项]
单人卡牌益智游戏。

  -h, --help     显示此帮助并退出
  -v, --version  显示版本并退出
      --scale N  将窗口放大到 N 倍（1 到 4，例如 1.5）

也可以使用 -platform 等 Qt 选项。设置 TESSELOR_HOME 可改用另一个文件夹存放
皮肤、规则文本和声音文件。
</translation>
    </message>
    <message>
        <source>tesselor: --scale takes a number from 1 to 4, such as 1.5, not &quot;%1&quot;.</source>
        <translation>tesselor: --scale 的值必须是 1 到 4 之间的数字，例如 1.5，不能是“%1”。</translation>
    </message>
    <message>
        <source>tesselor cannot show its window: no display is available.</source>
        <translation>tesselor 无法显示窗口：没有可用的显示服务。</translation>
    </message>
    <message>
        <source>tesselor cannot show its window: Qt&apos;s plugin for Wayland is missing. It is in the package %1.</source>
        <extracomment>%1: a name such as qt6-wayland</extracomment>
        <translation>tesselor 无法显示窗口：缺少 Qt 的 Wayland 插件。该插件在软件包 %1 中。</translation>
    </message>
</context>
</TS>

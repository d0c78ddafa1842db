<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja">
<context>
    <name>Tesselor</name>
    <message>
        <source>&quot;%1&quot; cannot be opened.</source>
        <translation>「%1」を開けません。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; needs more memory than is available.</source>
        <translation>メモリーが足りないため、「%1」を読み込めません。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a picture the game can read.</source>
        <translation>「%1」は対応していない画像です。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is %2 x %3 pixels; a skin has 3 x 13 cells, so it has at least 3 x 13 pixels.</source>
        <translation>「%1」は%2×%3ピクセルです。スキンは3×13マスなので、3×13ピクセル以上が必要です。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is %2 x %3 pixels; a skin has at most 16 million pixels.</source>
        <translation>「%1」は%2×%3ピクセルです。スキンは1600万ピクセルまでです。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was not found.</source>
        <translation>「%1」が見つかりません。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is larger than 64 megabytes, the most a skin may have.</source>
        <translation>「%1」は64MBを超えています。スキンは64MBまでです。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; takes too long to read.</source>
        <translation>「%1」の読み込みに時間がかかりすぎています。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is damaged or incomplete.</source>
        <translation>「%1」は壊れているか、不完全です。</translation>
    </message>
    <message>
        <source>levels and skins</source>
        <translation>難易度とスキン</translation>
    </message>
    <message>
        <source>help</source>
        <translation>ヘルプ</translation>
    </message>
    <message>
        <source>high scores</source>
        <translation>ハイスコア</translation>
    </message>
    <message>
        <source>practice</source>
        <translation>練習</translation>
    </message>
    <message>
        <source>junior</source>
        <translation>初級</translation>
    </message>
    <message>
        <source>senior</source>
        <translation>中級</translation>
    </message>
    <message>
        <source>expert</source>
        <translation>上級</translation>
    </message>
    <message>
        <source>master</source>
        <translation>達人</translation>
    </message>
    <message>
        <source>Skin %1</source>
        <translation>スキン：%1</translation>
    </message>
    <message>
        <source> select level</source>
        <translation>難易度を選択</translation>
    </message>
    <message>
        <source>select skin</source>
        <translation>スキンを選択</translation>
    </message>
    <message>
        <source>for more skins</source>
        <translation>その他のスキンはこちら</translation>
    </message>
    <message>
        <source>Opens the rules of the game</source>
        <translation>ゲームのルールを開きます</translation>
    </message>
    <message>
        <source>Plays a game by itself</source>
        <translation>自動プレイのデモを見せます</translation>
    </message>
    <message>
        <source>Eraser: lock it over a card to remove that card</source>
        <translation>消しゴム：カードの上に置くと、そのカードが消えます</translation>
    </message>
    <message>
        <source>Move the card: arrow keys or mouse</source>
        <translation>カードを移動：矢印キーまたはマウス</translation>
    </message>
    <message>
        <source>Lock the card: space bar or left mouse button</source>
        <translation>カードを置く：スペースキーまたは左クリック</translation>
    </message>
    <message>
        <source>Pause and resume: P or right mouse button</source>
        <translation>一時停止と再開：Pキーまたは右クリック</translation>
    </message>
    <message>
        <source>move card</source>
        <translation>カードを移動</translation>
    </message>
    <message>
        <source>lock card</source>
        <translation>カードを置く</translation>
    </message>
    <message>
        <source>pause/resume</source>
        <translation>一時停止/再開</translation>
    </message>
    <message>
        <source>arrow keys</source>
        <translation>矢印キー</translation>
    </message>
    <message>
        <source>space</source>
        <translation>Space</translation>
    </message>
    <message>
        <source>active card      </source>
        <translation>操作中のカード</translation>
    </message>
    <message>
        <source>erasor</source>
        <translation>消しゴム</translation>
    </message>
    <message>
        <source>more</source>
        <translation>詳細</translation>
    </message>
    <message>
        <source>demo</source>
        <translation>デモ</translation>
    </message>
    <message>
        <source>Start a new game</source>
        <translation>新しいゲームを始める</translation>
    </message>
    <message>
        <source>Choose a level and a skin</source>
        <translation>難易度とスキンを選ぶ</translation>
    </message>
    <message>
        <source>How to play</source>
        <translation>遊び方</translation>
    </message>
    <message>
        <source>High Score </source>
        <translation>ハイスコア</translation>
    </message>
    <message>
        <source>Read the rules</source>
        <translation>ルールを読む</translation>
    </message>
    <message>
        <source>play</source>
        <translation>スタート</translation>
    </message>
    <message>
        <source>menu</source>
        <translation>メニュー</translation>
    </message>
    <message>
        <source>score</source>
        <comment>button of the high-score table</comment>
        <translation>ハイスコア</translation>
    </message>
    <message>
        <source>Starts a new game</source>
        <translation>新しいゲームを始めます</translation>
    </message>
    <message>
        <source>How the game is played</source>
        <translation>遊び方を説明します</translation>
    </message>
    <message>
        <source>The four best games</source>
        <translation>上位4位までの記録</translation>
    </message>
    <message>
        <source>Enter Your Name</source>
        <translation>名前を入力</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Place %1: empty</source>
        <translation>%1位：記録なし</translation>
    </message>
    <message>
        <source>Place %1: %2, score %3, %4</source>
        <comment>place, player, score, date</comment>
        <translation>%1位：%2、スコア%3、%4</translation>
    </message>
    <message>
        <source>no name</source>
        <translation>名前なし</translation>
    </message>
    <message>
        <source>name</source>
        <translation>名前</translation>
    </message>
    <message>
        <source>date</source>
        <translation>日付</translation>
    </message>
    <message>
        <source>score</source>
        <translation>スコア</translation>
    </message>
    <message>
        <source>submit your high score</source>
        <translation>ハイスコアの登録はこちら</translation>
    </message>
    <message>
        <source>Exit </source>
        <translation>終了</translation>
    </message>
    <message>
        <source>exit</source>
        <translation>終了</translation>
    </message>
    <message>
        <source>Ends the program</source>
        <translation>プログラムを終了します</translation>
    </message>
    <message>
        <source>minimise</source>
        <translation>最小化</translation>
    </message>
    <message>
        <source>Score %1</source>
        <translation>スコア%1</translation>
    </message>
    <message numerus="yes">
        <source>%n card(s) left</source>
        <translation>
            <numerusform>残り%n枚</numerusform>
        </translation>
    </message>
    <message>
        <source>Time used</source>
        <translation>経過時間</translation>
    </message>
    <message>
        <source>Come and compete online at </source>
        <translation>オンラインで腕を競おう</translation>
    </message>
    <message>
        <source>CARDS LEFT</source>
        <translation>残り枚数</translation>
    </message>
    <message>
        <source>SCORE</source>
        <translation>スコア</translation>
    </message>
    <message>
        <source>next card</source>
        <translation>次のカード</translation>
    </message>
    <message>
        <source>The recording could not be written to %1.</source>
        <translation>%1にプレイの記録を書き込めませんでした。</translation>
    </message>
    <message>
        <source>Line up cards by : color, shape, quantity or series <byte value="xd"/>
1,2,3,4. For high score make multiple combinations</source>
        <translation>形・色・個数のどれかが同じ4枚か、1、2、3、4の順の4枚で列を作ろう。共通点が多いほど高得点！</translation>
    </message>
    <message>
        <source>The rules of the game</source>
        <translation>ゲームのルール</translation>
    </message>
    <message>
        <source>Time is up: locked in row %1, column %2.</source>
        <translation>時間切れ、%1行%2列に置きました。</translation>
    </message>
    <message>
        <source>Time is up.</source>
        <translation>時間切れ。</translation>
    </message>
    <message numerus="yes">
        <source>Line scored: %Ln point(s).</source>
        <translation>
            <numerusform>ライン完成、%Ln点。</numerusform>
        </translation>
    </message>
    <message>
        <source>Game over. %1.</source>
        <translation>ゲームオーバー。%1。</translation>
    </message>
    <message>
        <source>Are You Sure You want To Replace This Skin !</source>
        <translation>このスキンを置き換えますか？</translation>
    </message>
    <message>
        <source>No skins were found. A skin is a picture of 3 x 13 cards; put one in %1.</source>
        <translation>スキンが見つかりません。スキンは3×13枚のカードを並べた画像です。%1に入れてください。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be written into %2.</source>
        <comment>file, folder</comment>
        <translation>「%1」を%2に書き込めませんでした。</translation>
    </message>
    <message>
        <source>Paused.</source>
        <translation>一時停止。</translation>
    </message>
    <message>
        <source>Game resumed.</source>
        <translation>再開。</translation>
    </message>
    <message>
        <source>A quarter of the time bar is left.</source>
        <translation>残り時間4分の1。</translation>
    </message>
    <message>
        <source>covered</source>
        <comment>cell of the board</comment>
        <translation>非表示</translation>
    </message>
    <message>
        <source>empty</source>
        <comment>cell of the board</comment>
        <translation>空き</translation>
    </message>
    <message>
        <source>%1, active card</source>
        <comment>a card</comment>
        <translation>%1、操作中</translation>
    </message>
    <message>
        <source>%1, active card, over %2</source>
        <comment>two cards</comment>
        <translation>%1、操作中、下に%2</translation>
    </message>
    <message>
        <source>over %2, active card %1</source>
        <comment>two cards</comment>
        <translation>下に%2、操作中は%1</translation>
    </message>
    <message>
        <source>eraser</source>
        <translation>消しゴム</translation>
    </message>
    <message>
        <source>shape %1, colour %2, quantity %3</source>
        <translation>形%1、色%2、個数%3</translation>
    </message>
    <message>
        <source>Row %1, column %2: %3</source>
        <translation>%1行%2列：%3</translation>
    </message>
    <message>
        <source>Next card: none</source>
        <translation>次のカード：なし</translation>
    </message>
    <message>
        <source>Next card: %1</source>
        <translation>次のカード：%1</translation>
    </message>
    <message>
        <source>Board, level %1, paused</source>
        <translation>ボード、難易度：%1、一時停止中</translation>
    </message>
    <message>
        <source>Board, level %1</source>
        <translation>ボード、難易度：%1</translation>
    </message>
    <message>
        <source>empty, drop a picture here for a new skin</source>
        <comment>slot of the menu</comment>
        <translation>空き、ここに画像をドロップしてスキンを追加</translation>
    </message>
    <message>
        <source>Important notice!</source>
        <translation>重要なお知らせ</translation>
    </message>
    <message>
        <source>This application works with small fonts only</source>
        <translation>このアプリは「小さいフォント」でのみ動作します</translation>
    </message>
    <message>
        <source>Please change your system to &quot;Small Fonts&quot;</source>
        <translation>Windowsの設定でフォントサイズを</translation>
    </message>
    <message>
        <source>in the Windows Setting System</source>
        <translation>「小さいフォント」に変更してください</translation>
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
        <translation>使い方: tesselor [オプション]
1人用カードパズル。

  -h, --help     このヘルプを表示して終了
  -v, --version  バージョンを表示して終了
      --scale N  ウィンドウをN倍に拡大（Nは1から4まで、1.5など）

-platformなどのQtのオプションも使えます。TESSELOR_HOMEを設定すると、スキン、
ルールの文書、音声ファイルのフォルダーを変更できます。
</translation>
    </message>
    <message>
        <source>tesselor: --scale takes a number from 1 to 4, such as 1.5, not &quot;%1&quot;.</source>
        <translation>tesselor: --scaleには1から4までの数値（1.5など）を指定してください。「%1」は使えません。</translation>
    </message>
    <message>
        <source>tesselor cannot show its window: no display is available.</source>
        <translation>tesselorのウィンドウを表示できません。利用できるディスプレイがありません。</translation>
    </message>
    <message>
        <source>tesselor cannot show its window: Qt&apos;s plugin for Wayland is missing. It is in the package %1.</source>
        <extracomment>%1: a name such as qt6-wayland</extracomment>
        <translation>tesselorのウィンドウを表示できません。QtのWayland用プラグインがありません。パッケージ%1に含まれています。</translation>
    </message>
</context>
</TS>

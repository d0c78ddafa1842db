<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko">
<context>
    <name>Tesselor</name>
    <message>
        <source>&quot;%1&quot; cannot be opened.</source>
        <translation>“%1” 파일을 열 수 없습니다.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; needs more memory than is available.</source>
        <translation>메모리가 부족해 “%1” 파일을 읽을 수 없습니다.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a picture the game can read.</source>
        <translation>“%1” 파일은 지원하지 않는 그림입니다.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is %2 x %3 pixels; a skin has 3 x 13 cells, so it has at least 3 x 13 pixels.</source>
        <translation>“%1” 파일은 %2×%3픽셀입니다. 스킨은 3×13칸이므로 3×13픽셀 이상이어야 합니다.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is %2 x %3 pixels; a skin has at most 16 million pixels.</source>
        <translation>“%1” 파일은 %2×%3픽셀입니다. 스킨은 1600만 픽셀까지 사용할 수 있습니다.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was not found.</source>
        <translation>“%1” 파일을 찾을 수 없습니다.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is larger than 64 megabytes, the most a skin may have.</source>
        <translation>“%1” 파일이 64MB보다 큽니다. 스킨은 64MB까지 사용할 수 있습니다.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; takes too long to read.</source>
        <translation>“%1” 파일을 읽는 데 시간이 너무 오래 걸립니다.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is damaged or incomplete.</source>
        <translation>“%1” 파일이 손상되었거나 불완전합니다.</translation>
    </message>
    <message>
        <source>levels and skins</source>
        <translation>난이도와 스킨</translation>
    </message>
    <message>
        <source>help</source>
        <translation>도움말</translation>
    </message>
    <message>
        <source>high scores</source>
        <translation>최고 점수</translation>
    </message>
    <message>
        <source>practice</source>
        <translation>연습</translation>
    </message>
    <message>
        <source>junior</source>
        <translation>초급</translation>
    </message>
    <message>
        <source>senior</source>
        <translation>중급</translation>
    </message>
    <message>
        <source>expert</source>
        <translation>고급</translation>
    </message>
    <message>
        <source>master</source>
        <translation>달인</translation>
    </message>
    <message>
        <source>Skin %1</source>
        <translation>스킨: %1</translation>
    </message>
    <message>
        <source> select level</source>
        <translation>난이도 선택</translation>
    </message>
    <message>
        <source>select skin</source>
        <translation>스킨 선택</translation>
    </message>
    <message>
        <source>for more skins</source>
        <translation>스킨 더 보기</translation>
    </message>
    <message>
        <source>Opens the rules of the game</source>
        <translation>게임 규칙을 엽니다</translation>
    </message>
    <message>
        <source>Plays a game by itself</source>
        <translation>게임 한 판을 자동으로 보여 줍니다</translation>
    </message>
    <message>
        <source>Eraser: lock it over a card to remove that card</source>
        <translation>지우개: 카드 위에 놓으면 그 카드가 지워집니다</translation>
    </message>
    <message>
        <source>Move the card: arrow keys or mouse</source>
        <translation>카드 이동: 방향키 또는 마우스</translation>
    </message>
    <message>
        <source>Lock the card: space bar or left mouse button</source>
        <translation>카드 놓기: 스페이스 바 또는 마우스 왼쪽 버튼</translation>
    </message>
    <message>
        <source>Pause and resume: P or right mouse button</source>
        <translation>일시정지와 재개: P 키 또는 마우스 오른쪽 버튼</translation>
    </message>
    <message>
        <source>move card</source>
        <translation>카드 이동</translation>
    </message>
    <message>
        <source>lock card</source>
        <translation>카드 놓기</translation>
    </message>
    <message>
        <source>pause/resume</source>
        <translation>일시정지/재개</translation>
    </message>
    <message>
        <source>arrow keys</source>
        <translation>방향키</translation>
    </message>
    <message>
        <source>space</source>
        <translation>Space</translation>
    </message>
    <message>
        <source>active card      </source>
        <translation>현재 카드</translation>
    </message>
    <message>
        <source>erasor</source>
        <translation>지우개</translation>
    </message>
    <message>
        <source>more</source>
        <translation>규칙</translation>
    </message>
    <message>
        <source>demo</source>
        <translation>데모</translation>
    </message>
    <message>
        <source>Start a new game</source>
        <translation>새 게임 시작</translation>
    </message>
    <message>
        <source>Choose a level and a skin</source>
        <translation>난이도와 스킨 선택</translation>
    </message>
    <message>
        <source>How to play</source>
        <translation>게임 방법</translation>
    </message>
    <message>
        <source>High Score </source>
        <translation>최고 점수</translation>
    </message>
    <message>
        <source>Read the rules</source>
        <translation>규칙 읽기</translation>
    </message>
    <message>
        <source>play</source>
        <translation>시작</translation>
    </message>
    <message>
        <source>menu</source>
        <translation>메뉴</translation>
    </message>
    <message>
        <source>score</source>
        <comment>button of the high-score table</comment>
        <translation>최고 점수</translation>
    </message>
    <message>
        <source>Starts a new game</source>
        <translation>새 게임을 시작합니다</translation>
    </message>
    <message>
        <source>How the game is played</source>
        <translation>게임 방법을 알려 줍니다</translation>
    </message>
    <message>
        <source>The four best games</source>
        <translation>상위 네 개의 기록</translation>
    </message>
    <message>
        <source>Enter Your Name</source>
        <translation>이름을 입력하세요</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>확인</translation>
    </message>
    <message>
        <source>Place %1: empty</source>
        <translation>%1위: 기록 없음</translation>
    </message>
    <message>
        <source>Place %1: %2, score %3, %4</source>
        <comment>place, player, score, date</comment>
        <translation>%1위: %2, 점수 %3, %4</translation>
    </message>
    <message>
        <source>no name</source>
        <translation>이름 없음</translation>
    </message>
    <message>
        <source>name</source>
        <translation>이름</translation>
    </message>
    <message>
        <source>date</source>
        <translation>날짜</translation>
    </message>
    <message>
        <source>score</source>
        <translation>점수</translation>
    </message>
    <message>
        <source>submit your high score</source>
        <translation>최고 점수 등록하기</translation>
    </message>
    <message>
        <source>Exit </source>
        <translation>종료</translation>
    </message>
    <message>
        <source>exit</source>
        <translation>종료</translation>
    </message>
    <message>
        <source>Ends the program</source>
        <translation>프로그램을 종료합니다</translation>
    </message>
    <message>
        <source>minimise</source>
        <translation>최소화</translation>
    </message>
    <message>
        <source>Score %1</source>
        <translation>점수 %1</translation>
    </message>
    <message numerus="yes">
        <source>%n card(s) left</source>
        <translation>
            <numerusform>%n장 남음</numerusform>
        </translation>
    </message>
    <message>
        <source>Time used</source>
        <translation>경과 시간</translation>
    </message>
    <message>
        <source>Come and compete online at </source>
        <translation>온라인에서 겨뤄 보세요</translation>
    </message>
    <message>
        <source>CARDS LEFT</source>
        <translation>남은 카드</translation>
    </message>
    <message>
        <source>SCORE</source>
        <translation>점수</translation>
    </message>
    <message>
        <source>next card</source>
        <translation>다음 카드</translation>
    </message>
    <message>
        <source>The recording could not be written to %1.</source>
        <translation>%1에 플레이 기록을 저장할 수 없습니다.</translation>
    </message>
    <message>
        <source>Line up cards by : color, shape, quantity or series <byte value="xd"/>
1,2,3,4. For high score make multiple combinations</source>
        <translation>모양이나 색, 개수가 같거나 1, 2, 3, 4 순서인 카드 4장을 한 줄로 놓으세요. 공통점이 많을수록 고득점!</translation>
    </message>
    <message>
        <source>The rules of the game</source>
        <translation>게임 규칙</translation>
    </message>
    <message>
        <source>Time is up: locked in row %1, column %2.</source>
        <translation>시간 초과, %1행 %2열에 놓임.</translation>
    </message>
    <message>
        <source>Time is up.</source>
        <translation>시간 초과.</translation>
    </message>
    <message numerus="yes">
        <source>Line scored: %Ln point(s).</source>
        <translation>
            <numerusform>줄 완성, %Ln점.</numerusform>
        </translation>
    </message>
    <message>
        <source>Game over. %1.</source>
        <translation>게임 오버. %1.</translation>
    </message>
    <message>
        <source>Are You Sure You want To Replace This Skin !</source>
        <translation>이 스킨을 교체할까요?</translation>
    </message>
    <message>
        <source>No skins were found. A skin is a picture of 3 x 13 cards; put one in %1.</source>
        <translation>스킨을 찾을 수 없습니다. 스킨은 카드 3×13장으로 된 그림입니다. %1에 넣어 주세요.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be written into %2.</source>
        <comment>file, folder</comment>
        <translation>“%1” 파일을 %2에 저장할 수 없습니다.</translation>
    </message>
    <message>
        <source>Paused.</source>
        <translation>일시정지.</translation>
    </message>
    <message>
        <source>Game resumed.</source>
        <translation>재개.</translation>
    </message>
    <message>
        <source>A quarter of the time bar is left.</source>
        <translation>남은 시간 4분의 1.</translation>
    </message>
    <message>
        <source>covered</source>
        <comment>cell of the board</comment>
        <translation>가려짐</translation>
    </message>
    <message>
        <source>empty</source>
        <comment>cell of the board</comment>
        <translation>빈칸</translation>
    </message>
    <message>
        <source>%1, active card</source>
        <comment>a card</comment>
        <translation>%1, 현재 카드</translation>
    </message>
    <message>
        <source>%1, active card, over %2</source>
        <comment>two cards</comment>
        <translation>%1, 현재 카드, 밑에 %2</translation>
    </message>
    <message>
        <source>over %2, active card %1</source>
        <comment>two cards</comment>
        <translation>밑에 %2, 현재 카드 %1</translation>
    </message>
    <message>
        <source>eraser</source>
        <translation>지우개</translation>
    </message>
    <message>
        <source>shape %1, colour %2, quantity %3</source>
        <translation>모양 %1, 색 %2, 개수 %3</translation>
    </message>
    <message>
        <source>Row %1, column %2: %3</source>
        <translation>%1행 %2열: %3</translation>
    </message>
    <message>
        <source>Next card: none</source>
        <translation>다음 카드: 없음</translation>
    </message>
    <message>
        <source>Next card: %1</source>
        <translation>다음 카드: %1</translation>
    </message>
    <message>
        <source>Board, level %1, paused</source>
        <translation>보드, 난이도 %1, 일시정지</translation>
    </message>
    <message>
        <source>Board, level %1</source>
        <translation>보드, 난이도 %1</translation>
    </message>
    <message>
        <source>empty, drop a picture here for a new skin</source>
        <comment>slot of the menu</comment>
        <translation>비어 있음, 그림을 여기에 끌어다 놓아 스킨 추가</translation>
    </message>
    <message>
        <source>Important notice!</source>
        <translation>중요 알림</translation>
    </message>
    <message>
        <source>This application works with small fonts only</source>
        <translation>이 프로그램은 ‘작은 글꼴’에서만 작동합니다</translation>
    </message>
    <message>
        <source>Please change your system to &quot;Small Fonts&quot;</source>
        <translation>Windows 시스템 설정에서</translation>
    </message>
    <message>
        <source>in the Windows Setting System</source>
        <translation>‘작은 글꼴’로 바꿔 주세요</translation>
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
        <translation>사용법: tesselor [옵션]
1인용 카드 퍼즐.

  -h, --help     이 도움말을 표시하고 종료
  -v, --version  버전을 표시하고 종료
      --scale N  창을 N배로 확대(1에서 4까지, 예: 1.5)

-platform 같은 Qt 옵션도 사용할 수 있습니다. TESSELOR_HOME을 설정하면 스킨,
규칙 문서, 소리 파일을 다른 폴더에서 불러옵니다.
</translation>
    </message>
    <message>
        <source>tesselor: --scale takes a number from 1 to 4, such as 1.5, not &quot;%1&quot;.</source>
        <translation>tesselor: --scale에는 1에서 4까지의 숫자(예: 1.5)를 지정해야 합니다. “%1” 값은 사용할 수 없습니다.</translation>
    </message>
    <message>
        <source>tesselor cannot show its window: no display is available.</source>
        <translation>tesselor 창을 표시할 수 없습니다. 사용할 수 있는 디스플레이가 없습니다.</translation>
    </message>
    <message>
        <source>tesselor cannot show its window: Qt&apos;s plugin for Wayland is missing. It is in the package %1.</source>
        <extracomment>%1: a name such as qt6-wayland</extracomment>
        <translation>tesselor 창을 표시할 수 없습니다. Qt의 Wayland 플러그인이 없습니다. %1 패키지에 들어 있습니다.</translation>
    </message>
</context>
</TS>

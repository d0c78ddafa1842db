<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar">
<context>
    <name>Tesselor</name>
    <message>
        <source>&quot;%1&quot; cannot be opened.</source>
        <translation>تعذّر فتح «%1».</translation>
    </message>
    <message>
        <source>&quot;%1&quot; needs more memory than is available.</source>
        <translation>الذاكرة المتاحة لا تكفي لفتح «%1».</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a picture the game can read.</source>
        <translation>تعذّرت قراءة «%1» كصورة.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is %2 x %3 pixels; a skin has 3 x 13 cells, so it has at least 3 x 13 pixels.</source>
        <translation>أبعاد «%1» هي %2 في %3 بكسل، والمظهر 3 في 13 خانة، أي لا يقل عن 3 في 13 بكسل.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is %2 x %3 pixels; a skin has at most 16 million pixels.</source>
        <translation>أبعاد «%1» هي %2 في %3 بكسل، والحد الأقصى للمظهر 16 مليون بكسل.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was not found.</source>
        <translation>لم يُعثر على «%1».</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is larger than 64 megabytes, the most a skin may have.</source>
        <translation>حجم «%1» أكبر من 64 ميغابايت، وهو الحد الأقصى للمظهر.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; takes too long to read.</source>
        <translation>قراءة «%1» تستغرق وقتًا أطول من اللازم.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is damaged or incomplete.</source>
        <translation>الملف «%1» تالف أو ناقص.</translation>
    </message>
    <message>
        <source>levels and skins</source>
        <translation>المستويات والمظاهر</translation>
    </message>
    <message>
        <source>help</source>
        <translation>مساعدة</translation>
    </message>
    <message>
        <source>high scores</source>
        <translation>أفضل النتائج</translation>
    </message>
    <message>
        <source>practice</source>
        <translation>تدريب</translation>
    </message>
    <message>
        <source>junior</source>
        <translation>مبتدئ</translation>
    </message>
    <message>
        <source>senior</source>
        <translation>متقدم</translation>
    </message>
    <message>
        <source>expert</source>
        <translation>خبير</translation>
    </message>
    <message>
        <source>master</source>
        <translation>أستاذ</translation>
    </message>
    <message>
        <source>Skin %1</source>
        <translation>المظهر %1</translation>
    </message>
    <message>
        <source> select level</source>
        <translation>اختر المستوى</translation>
    </message>
    <message>
        <source>select skin</source>
        <translation>اختر المظهر</translation>
    </message>
    <message>
        <source>for more skins</source>
        <translation>لمزيد من المظاهر</translation>
    </message>
    <message>
        <source>Opens the rules of the game</source>
        <translation>يفتح قواعد اللعبة</translation>
    </message>
    <message>
        <source>Plays a game by itself</source>
        <translation>اللعبة تلعب وحدها</translation>
    </message>
    <message>
        <source>Eraser: lock it over a card to remove that card</source>
        <translation>ممحاة: ثبّتها فوق بطاقة لإزالة تلك البطاقة</translation>
    </message>
    <message>
        <source>Move the card: arrow keys or mouse</source>
        <translation>تحريك البطاقة: مفاتيح الأسهم أو الفأرة</translation>
    </message>
    <message>
        <source>Lock the card: space bar or left mouse button</source>
        <translation>تثبيت البطاقة: مفتاح المسافة أو زر الفأرة الأيسر</translation>
    </message>
    <message>
        <source>Pause and resume: P or right mouse button</source>
        <translation>إيقاف مؤقت واستئناف: المفتاح P أو زر الفأرة الأيمن</translation>
    </message>
    <message>
        <source>move card</source>
        <translation>تحريك البطاقة</translation>
    </message>
    <message>
        <source>lock card</source>
        <translation>تثبيت البطاقة</translation>
    </message>
    <message>
        <source>pause/resume</source>
        <translation>إيقاف مؤقت</translation>
    </message>
    <message>
        <source>arrow keys</source>
        <translation>الأسهم</translation>
    </message>
    <message>
        <source>space</source>
        <translation>المسافة</translation>
    </message>
    <message>
        <source>active card      </source>
        <translation>البطاقة النشطة</translation>
    </message>
    <message>
        <source>erasor</source>
        <translation>الممحاة</translation>
    </message>
    <message>
        <source>more</source>
        <translation>المزيد</translation>
    </message>
    <message>
        <source>demo</source>
        <translation>مثال</translation>
    </message>
    <message>
        <source>Start a new game</source>
        <translation>بدء لعبة جديدة</translation>
    </message>
    <message>
        <source>Choose a level and a skin</source>
        <translation>اختيار المستوى والمظهر</translation>
    </message>
    <message>
        <source>How to play</source>
        <translation>طريقة اللعب</translation>
    </message>
    <message>
        <source>High Score </source>
        <translation>أفضل النتائج</translation>
    </message>
    <message>
        <source>Read the rules</source>
        <translation>قراءة القواعد</translation>
    </message>
    <message>
        <source>play</source>
        <translation>لعب</translation>
    </message>
    <message>
        <source>menu</source>
        <translation>القائمة</translation>
    </message>
    <message>
        <source>score</source>
        <comment>button of the high-score table</comment>
        <translation>أفضل النتائج</translation>
    </message>
    <message>
        <source>Starts a new game</source>
        <translation>يبدأ لعبة جديدة</translation>
    </message>
    <message>
        <source>How the game is played</source>
        <translation>يشرح طريقة اللعب</translation>
    </message>
    <message>
        <source>The four best games</source>
        <translation>أفضل أربع نتائج</translation>
    </message>
    <message>
        <source>Enter Your Name</source>
        <translation>أدخل اسمك</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>موافق</translation>
    </message>
    <message>
        <source>Place %1: empty</source>
        <translation>المركز %1: فارغ</translation>
    </message>
    <message>
        <source>Place %1: %2, score %3, %4</source>
        <comment>place, player, score, date</comment>
        <translation>المركز %1: %2، النتيجة %3، %4</translation>
    </message>
    <message>
        <source>no name</source>
        <translation>بلا اسم</translation>
    </message>
    <message>
        <source>name</source>
        <translation>الاسم</translation>
    </message>
    <message>
        <source>date</source>
        <translation>التاريخ</translation>
    </message>
    <message>
        <source>score</source>
        <translation>النتيجة</translation>
    </message>
    <message>
        <source>submit your high score</source>
        <translation>أرسل نتيجتك</translation>
    </message>
    <message>
        <source>Exit </source>
        <translation>خروج</translation>
    </message>
    <message>
        <source>exit</source>
        <translation>خروج</translation>
    </message>
    <message>
        <source>Ends the program</source>
        <translation>ينهي البرنامج</translation>
    </message>
    <message>
        <source>minimise</source>
        <translation>تصغير</translation>
    </message>
    <message>
        <source>Score %1</source>
        <translation>النتيجة %1</translation>
    </message>
    <message numerus="yes">
        <source>%n card(s) left</source>
        <translation>
            <numerusform>البطاقات المتبقية: %n</numerusform>
            <numerusform>البطاقات المتبقية: %n</numerusform>
            <numerusform>البطاقات المتبقية: %n</numerusform>
            <numerusform>البطاقات المتبقية: %n</numerusform>
            <numerusform>البطاقات المتبقية: %n</numerusform>
            <numerusform>البطاقات المتبقية: %n</numerusform>
        </translation>
    </message>
    <message>
        <source>Time used</source>
        <translation>الوقت المنقضي</translation>
    </message>
    <message>
        <source>Come and compete online at </source>
        <translation>نافس الآخرين عبر الإنترنت</translation>
    </message>
    <message>
        <source>CARDS LEFT</source>
        <translation>المتبقية</translation>
    </message>
    <message>
        <source>SCORE</source>
        <translation>النتيجة</translation>
    </message>
    <message>
        <source>next card</source>
        <translation>التالية</translation>
    </message>
    <message>
        <source>The recording could not be written to %1.</source>
        <translation>تعذّر حفظ تسجيل اللعبة في %1.</translation>
    </message>
    <message>
        <source>Line up cards by : color, shape, quantity or series <byte value="xd"/>
1,2,3,4. For high score make multiple combinations</source>
        <translation>كوّن خطوطًا من بطاقات لها الشكل أو اللون أو العدد نفسه، أو التسلسل من 1 إلى 4. كلما زادت القواسم المشتركة زادت نقاطك.</translation>
    </message>
    <message>
        <source>The rules of the game</source>
        <translation>قواعد اللعبة</translation>
    </message>
    <message>
        <source>Time is up: locked in row %1, column %2.</source>
        <translation>انتهى الوقت: ثُبّتت في الصف %1، العمود %2.</translation>
    </message>
    <message>
        <source>Time is up.</source>
        <translation>انتهى الوقت.</translation>
    </message>
    <message numerus="yes">
        <source>Line scored: %Ln point(s).</source>
        <translation>
            <numerusform>اكتمل خط، النقاط: %Ln.</numerusform>
            <numerusform>اكتمل خط، النقاط: %Ln.</numerusform>
            <numerusform>اكتمل خط، النقاط: %Ln.</numerusform>
            <numerusform>اكتمل خط: %Ln نقاط.</numerusform>
            <numerusform>اكتمل خط: %Ln نقطة.</numerusform>
            <numerusform>اكتمل خط: %Ln نقطة.</numerusform>
        </translation>
    </message>
    <message>
        <source>Game over. %1.</source>
        <translation>انتهت اللعبة. %1.</translation>
    </message>
    <message>
        <source>Are You Sure You want To Replace This Skin !</source>
        <translation>هل تريد استبدال هذا المظهر؟</translation>
    </message>
    <message>
        <source>No skins were found. A skin is a picture of 3 x 13 cards; put one in %1.</source>
        <translation>لم يُعثر على أي مظهر. المظهر صورة من 3 في 13 بطاقة؛ ضع صورة في %1.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be written into %2.</source>
        <comment>file, folder</comment>
        <translation>تعذّرت كتابة «%1» في %2.</translation>
    </message>
    <message>
        <source>Paused.</source>
        <translation>إيقاف مؤقت.</translation>
    </message>
    <message>
        <source>Game resumed.</source>
        <translation>استؤنفت اللعبة.</translation>
    </message>
    <message>
        <source>A quarter of the time bar is left.</source>
        <translation>بقي ربع الوقت.</translation>
    </message>
    <message>
        <source>covered</source>
        <comment>cell of the board</comment>
        <translation>مغطاة</translation>
    </message>
    <message>
        <source>empty</source>
        <comment>cell of the board</comment>
        <translation>فارغة</translation>
    </message>
    <message>
        <source>%1, active card</source>
        <comment>a card</comment>
        <translation>%1، البطاقة النشطة</translation>
    </message>
    <message>
        <source>%1, active card, over %2</source>
        <comment>two cards</comment>
        <translation>%1، البطاقة النشطة، فوق %2</translation>
    </message>
    <message>
        <source>over %2, active card %1</source>
        <comment>two cards</comment>
        <translation>فوق %2، البطاقة النشطة %1</translation>
    </message>
    <message>
        <source>eraser</source>
        <translation>الممحاة</translation>
    </message>
    <message>
        <source>shape %1, colour %2, quantity %3</source>
        <translation>شكل %1، لون %2، عدد %3</translation>
    </message>
    <message>
        <source>Row %1, column %2: %3</source>
        <translation>الصف %1، العمود %2: %3</translation>
    </message>
    <message>
        <source>Next card: none</source>
        <translation>البطاقة التالية: لا شيء</translation>
    </message>
    <message>
        <source>Next card: %1</source>
        <translation>البطاقة التالية: %1</translation>
    </message>
    <message>
        <source>Board, level %1, paused</source>
        <translation>اللوحة، المستوى %1، إيقاف مؤقت</translation>
    </message>
    <message>
        <source>Board, level %1</source>
        <translation>اللوحة، المستوى %1</translation>
    </message>
    <message>
        <source>empty, drop a picture here for a new skin</source>
        <comment>slot of the menu</comment>
        <translation>فارغة، أفلت صورة هنا لإضافة مظهر جديد</translation>
    </message>
    <message>
        <source>Important notice!</source>
        <translation>تنبيه مهم!</translation>
    </message>
    <message>
        <source>This application works with small fonts only</source>
        <translation>يعمل هذا التطبيق بالخطوط الصغيرة فقط</translation>
    </message>
    <message>
        <source>Please change your system to &quot;Small Fonts&quot;</source>
        <translation>يُرجى تغيير النظام إلى «خطوط صغيرة»</translation>
    </message>
    <message>
        <source>in the Windows Setting System</source>
        <translation>في إعدادات نظام Windows</translation>
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
        <translation>الاستخدام: tesselor [خيارات]
لغز بطاقات للاعب واحد.

  -h, --help     عرض هذه المساعدة والخروج
  -v, --version  عرض الإصدار والخروج
      --scale N  تكبير النافذة بمعامل N، من 1 إلى 4، مثل 1.5

تُقبل أيضًا خيارات Qt مثل -platform. اضبط TESSELOR_HOME لاستخدام مجلد آخر
للمظاهر ونص القواعد وملفات الصوت.
</translation>
    </message>
    <message>
        <source>tesselor: --scale takes a number from 1 to 4, such as 1.5, not &quot;%1&quot;.</source>
        <translation>tesselor: يتطلب الخيار --scale عددًا من 1 إلى 4، مثل 1.5، وليس «%1».</translation>
    </message>
    <message>
        <source>tesselor cannot show its window: no display is available.</source>
        <translation>تعذّر على tesselor عرض نافذته: لا توجد شاشة متاحة.</translation>
    </message>
    <message>
        <source>tesselor cannot show its window: Qt&apos;s plugin for Wayland is missing. It is in the package %1.</source>
        <extracomment>%1: a name such as qt6-wayland</extracomment>
        <translation>تعذّر على tesselor عرض نافذته: ملحق Qt لدعم Wayland غير موجود. تجده في الحزمة %1.</translation>
    </message>
</context>
</TS>

// What controls answer: the mouse, the keyboard, assistive technology.

#include <gtest/gtest.h>

#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <map>

#include "platform/Button.h"
#include "platform/Dialogs.h"
#include "platform/Frame.h"
#include "platform/Image.h"
#include "platform/KeyboardFocus.h"
#include "platform/Label.h"
#include "platform/PictureBox.h"
#include "platform/Time.h"

namespace {

// A control of 40 x 20 pixels.
const Placement kPlace{"control", {0, 0, 600, 300}, "text"};

// Press, double click and release inside, release outside, of the right button in small letters; move in and
// out; hide and show.
void Act(QWidget& control, char letter) {
    if (letter == 'h' || letter == 's') return control.setVisible(letter == 's');
    const std::map<char, QEvent::Type> types{
        {'p', QEvent::MouseButtonPress},   {'d', QEvent::MouseButtonDblClick},
        {'r', QEvent::MouseButtonRelease}, {'o', QEvent::MouseButtonRelease},
        {'<', QEvent::MouseMove},          {'>', QEvent::MouseMove}};
    const QPointF at(letter == 'O' || letter == '>' ? 40 : 39, 19);
    const auto button = std::islower(letter) ? Qt::RightButton : Qt::LeftButton;
    QMouseEvent event(types.at(char(std::tolower(letter))), at, control.mapToGlobal(at), button, button, {});
    QCoreApplication::sendEvent(&control, &event);
}

// After each letter: whether the control is seen down or up, and "!" for a click that found it up.
template <class Control>
std::string Answer(Control& control, const std::string& letters) {
    const auto look = [&control] { return control.grab().toImage(); };
    control.show();
    const QImage resting = look();
    std::string answer, clicks;
    control.onClick = [&] { clicks += look() == resting ? '!' : '?'; };
    for (const char letter : letters) {
        Act(control, letter);
        answer += (look() == resting ? 'u' : 'd') + std::exchange(clicks, {});
    }
    return answer;
}

TEST(Controls, AreSeenPressedWhileTheLeftButtonIsHeldOverThem) {
    const std::tuple<const char*, const char*, const char*> cases[] = {
        {"a click", "PR", "du!"},           {"out and back in", "P><R", "dudu!"},
        {"released outside", "P>O", "duu"}, {"the right button", "pr", "uu"},
        {"both buttons", "PrR", "ddu!"},    {"a double click", "PRDR", "du!du!"},
        {"no button", "><", "uu"},          {"hidden meanwhile", "PhRsR", "duuuu!"},
    };
    for (const auto& [what, letters, expected] : cases) {
        SCOPED_TRACE(what);
        Label label(nullptr, kPlace);
        Image image(nullptr, kPlace);
        PictureBox box(nullptr, kPlace, 1);
        image.Picture(WindowArt("notice"));
        std::string still = expected;  // what answers no click does not move
        std::replace(still.begin(), still.end(), 'd', 'u');
        EXPECT_EQ(Answer(label, letters), still);
        for (Pressable<QWidget>* control : std::initializer_list<Pressable<QWidget>*>{&label, &image, &box}) {
            control->ShowsPress(true);
            EXPECT_EQ(Answer(*control, letters), expected);
        }
    }
    CommandButton button(nullptr, kPlace);
    int clicks = 0;
    QObject::connect(&button, &QPushButton::clicked, [&] { ++clicks; });
    button.show();
    for (const char letter : std::string("PhRsPR")) Act(button, letter);
    EXPECT_EQ(clicks, 1);
}

TEST(Controls, TellButtonsKeysAndPlace) {
    for (int bits = 0; bits < 8; ++bits) {  // the game numbers buttons as the toolkit does, and keys from 1
        const Qt::KeyboardModifiers keys(bits << 25);
        const auto button = static_cast<Qt::MouseButton>(bits);
        for (const MouseInput& input :
             {ToMouseInput({QEvent::MouseMove, {3, 4.5}, {}, Qt::NoButton, button, keys}),
              ToMouseInput({QEvent::MouseButtonPress, {3, 4.5}, {}, button, Qt::AllButtons, keys})})
            EXPECT_EQ(std::tuple(input.button, input.shift, input.x, input.y),
                      std::tuple(bits, bits, 3, 4.5));
    }
}

// Buttons on a window that answers keys for them; the first stands in the middle and has the keyboard.
struct Board : QWidget {
    Board() { setFixedSize(400, 400), Add({0, 0}).setFocus(), show(); }
    CommandButton& Add(QPoint from) {
        auto* button = new CommandButton(this, kPlace);
        button->move(QPoint(180, 190) + from);
        button->show();
        QObject::connect(button, &QPushButton::clicked, [this] { ++clicks; });
        return *buttons.emplace_back(button);
    }
    void keyPressEvent(QKeyEvent* event) override { event->setAccepted(AnswerKey(*this, *event)); }
    bool Press(int key, bool repeated = false) {
        QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier, {}, repeated);
        QCoreApplication::sendEvent(focusWidget(), &event);
        return event.isAccepted();
    }
    std::vector<CommandButton*> buttons;
    int clicks = 0;
};

TEST(Keyboard, AnArrowGoesToTheNearestControlAhead) {
    // Steps ahead and aside; the number of the one that gets the keyboard, 0 where it stays; what becomes of
    // the first.
    const std::tuple<const char*, std::vector<QPoint>, int, std::function<void(QWidget&)>> cases[] = {
        {"the nearer", {{60, 0}, {59, 0}}, 2, {}},
        {"aside counts fourfold", {{57, 0}, {40, 4}}, 2, {}},
        {"no less", {{57, 0}, {40, 5}}, 1, {}},
        {"the first of two alike", {{40, 8}, {40, -8}}, 1, {}},
        {"far aside", {{30, 20}}, 0, {}},
        {"not so far", {{31, 20}}, 1, {}},
        {"behind", {{-40, 0}}, 0, {}},
        {"hidden", {{30, 0}, {60, 0}}, 2, &QWidget::hide},
        {"disabled", {{30, 0}, {60, 0}}, 2, [](QWidget& w) { w.setEnabled(false); }},
        {"without the keyboard", {{30, 0}, {60, 0}}, 2, [](QWidget& w) { w.setFocusPolicy(Qt::NoFocus); }},
    };
    constexpr int keys[] = {Qt::Key_Right, Qt::Key_Down, Qt::Key_Left, Qt::Key_Up};
    for (const auto& [what, steps, next, change] : cases)
        for (int quarter = 0; quarter < 4; ++quarter) {
            Board board;
            for (const QPoint step : steps) board.Add(QTransform().rotate(90 * quarter).map(step));
            if (change) change(*board.buttons[1]);
            EXPECT_TRUE(board.Press(keys[quarter]));
            EXPECT_EQ(board.focusWidget(), board.buttons[std::size_t(next)]) << what << ' ' << quarter;
        }
}

TEST(Keyboard, PressesWhatCanBePressedOnceAndIsMarked) {
    Board board;
    FocusRing ring(&board);
    board.Add({100, 0});
    board.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&board) && ring.isHidden());
    for (const int key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space})
        AnswerKey(board, {QEvent::KeyPress, key, {}});
    EXPECT_TRUE(AnswerKey(board, {QEvent::KeyPress, Qt::Key_Space, {}, {}, true}));
    EXPECT_EQ(board.clicks, 3);
    QTest::keyClick(board.buttons[0], Qt::Key_Tab);
    EXPECT_EQ(ring.geometry(), QRect(277, 187, 46, 26));
    const QImage seen = board.grab().toImage();
    for (const int dark : {277, 322}) {
        EXPECT_EQ(seen.pixelColor(dark, 200), QColor(0x0B, 0x14, 0x30));
        for (const int in : {1, 2})
            EXPECT_EQ(seen.pixelColor(dark < 300 ? dark + in : dark - in, 200), QColor(0xF4, 0xC8, 0x4E));
    }
    Label decoration(&board, kPlace);
    decoration.show();
    decoration.setFocus();
    EXPECT_TRUE(ring.isHidden());
    EXPECT_FALSE(board.Press(Qt::Key_Space) || board.Press(Qt::Key_A));
}

TEST(Access, DescribesControlsAsTheyDescribeThemselves) {
    InstallAccess();
    Frame frame(nullptr, {"frame", {0, 0, 1500, 1500}, {}});
    frame.access = {QAccessible::Grouping, [] { return QString("board"); }};
    Frame decoration(&frame, kPlace);
    Label away(&frame, {"away", {1500, 0, 600, 300}, ""}),
        label(&frame, {"label", {0, 300, 600, 300}, "a\n b"});
    QAccessibleInterface* board = QAccessible::queryAccessibleInterface(&frame);
    ASSERT_EQ(board->childCount(), 1);
    QAccessibleInterface* text = board->child(0);
    EXPECT_EQ(board->indexOfChild(text), 0);
    EXPECT_EQ(board->text(QAccessible::Name) + text->text(QAccessible::Name), "boarda b");
    EXPECT_EQ(board->role(), QAccessible::Grouping);
    QAccessibleActionInterface* actions = text->actionInterface();
    EXPECT_FALSE(actions->actionNames().contains("Press") || text->valueInterface());
    EXPECT_FALSE(text->state().checkable || text->state().selectable);
    int pressed = 0;
    label.access.press = [&] { ++pressed; };
    label.access.percent = [] { return 40; };
    EXPECT_EQ(actions->actionNames().value(0), "Press");
    EXPECT_EQ(text->valueInterface()->currentValue(), 40);
    for (const bool enabled : {true, false}) label.Enabled(enabled), actions->doAction("Press");
    EXPECT_EQ(pressed, 1);
    for (const int bits : {0, 1, 2, 3}) {
        const bool radio = bits / 2, chosen = bits % 2;
        label.access.role = radio ? QAccessible::RadioButton : QAccessible::ListItem;
        label.access.chosen = [&] { return chosen; };
        const QAccessible::State state = text->state();
        EXPECT_EQ(std::tuple(state.checkable, state.checked, state.selectable, state.selected),
                  std::tuple(radio, radio && chosen, !radio, !radio && chosen));
    }
}

TEST(Dialogs, SayPlainTextAndGiveTheAnswer) {
    for (const auto button : {QMessageBox::Yes, QMessageBox::No, QMessageBox::Cancel}) {
        QTimer::singleShot(0, [button] {
            auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            EXPECT_EQ(box->text(), "<b>?");
            EXPECT_EQ(box->textFormat(), Qt::PlainText);
            EXPECT_FALSE(box->iconPixmap().isNull());
            QAbstractButton* const pressed = box->button(button);
            pressed ? pressed->click() : QTest::keyClick(box, Qt::Key_Escape);
        });
        EXPECT_EQ(MessageBoxes().Ask(nullptr, "<b>?"), button == QMessageBox::Yes);
    }
}

TEST(RealTime, RingsUntilItIsStopped) {
    RealTime time;
    int rings = 0;
    const auto alarm = time.NewAlarm([&rings] { ++rings; });
    alarm->Start(std::chrono::milliseconds(1));
    while (rings < 2) time.ProcessEvents();
    alarm->Stop();
    time.Wait(std::chrono::milliseconds(3));
    time.ProcessEvents();
    EXPECT_EQ(rings, 2);
}

}  // namespace

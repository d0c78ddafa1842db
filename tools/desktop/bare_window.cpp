// The least a Qt window with text can be: a label, a button, a line edit, and a picture that the arrow keys
// and the mouse move. With "--tick" a stripe of it is painted 23 times a second, as the game's time bar is at
// master level. What the game's figures are compared with.

#include <QApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QPushButton>
#include <QTimer>

class BareWindow final : public QWidget {
public:
    explicit BareWindow(bool ticks) {
        setWindowTitle(QStringLiteral("Bare"));
        setWindowFlag(Qt::FramelessWindowHint);  // as the game's window is
        setFixedSize(399, 411);
        setAutoFillBackground(true);
        setPalette(QColor(40, 60, 120));
        QPixmap tile(64, 64);
        tile.fill(Qt::white);
        tile_.setPixmap(tile);
        tile_.move(51, 259);
        button_.move(51, 60);
        edit_.move(51, 110);
        for (QWidget* control : {static_cast<QWidget*>(&button_), static_cast<QWidget*>(&edit_)})
            control->setFocusPolicy(Qt::NoFocus);
        setMouseTracking(true);
        tile_.setAttribute(Qt::WA_TransparentForMouseEvents);
        tick_.setTimerType(Qt::PreciseTimer);
        connect(&tick_, &QTimer::timeout, this, [this] { update(10, 60 + ++ticks_ % 40 * 6, 20, 6); });
        if (ticks) tick_.start(43);
    }

protected:
    void paintEvent(QPaintEvent* event) override {
        QPainter(this).fillRect(event->rect(), ticks_ % 2 == 0 ? QColor(40, 60, 120) : QColor(60, 80, 140));
    }
    void mouseMoveEvent(QMouseEvent* event) override {
        tile_.move(51, event->position().y() < 258 ? 193 : 259);
    }
    void keyPressEvent(QKeyEvent* event) override {
        if (event->key() == Qt::Key_Up) tile_.move(51, 193);
        if (event->key() == Qt::Key_Down) tile_.move(51, 259);
    }

private:
    QTimer tick_;
    int ticks_ = 0;
    QLabel tile_{this};
    QLabel label_{QStringLiteral("A label"), this};
    QPushButton button_{QStringLiteral("A button"), this};
    QLineEdit edit_{this};
};

int main(int argc, char* argv[]) {
    QApplication application(argc, argv);
    BareWindow window(QApplication::arguments().contains(QLatin1String("--tick")));
    window.show();
    return QApplication::exec();
}

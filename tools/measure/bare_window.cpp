// The least a Qt window with text can be: a label, a button, a line edit, and a picture that the arrow keys
// move. What the game's figures are compared with.

#include <QApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

class BareWindow final : public QWidget {
public:
    BareWindow() {
        setWindowTitle(QStringLiteral("Bare"));
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
    }

protected:
    void keyPressEvent(QKeyEvent* event) override {
        if (event->key() == Qt::Key_Up) tile_.move(51, 193);
        if (event->key() == Qt::Key_Down) tile_.move(51, 259);
    }

private:
    QLabel tile_{this};
    QLabel label_{QStringLiteral("A label"), this};
    QPushButton button_{QStringLiteral("A button"), this};
    QLineEdit edit_{this};
};

int main(int argc, char* argv[]) {
    QApplication application(argc, argv);
    BareWindow window;
    window.show();
    return QApplication::exec();
}

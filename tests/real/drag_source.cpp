// Another program's window, to drag a file from: a press on it begins the drag of the file named as argument.

#include <QApplication>
#include <QDrag>
#include <QMimeData>
#include <QMouseEvent>
#include <QUrl>
#include <QWidget>
#include <cstdio>

class DragSource final : public QWidget {
public:
    explicit DragSource(QUrl file) : file_(std::move(file)) {
        setWindowTitle(QStringLiteral("Source"));
        setGeometry(900, 50, 200, 200);
    }

protected:
    void mouseMoveEvent(QMouseEvent* /*event*/) override {
        auto* data = new QMimeData;
        data->setUrls({file_});
        auto* drag = new QDrag(this);  // owns the data, and is deleted by the toolkit when it has ended
        drag->setMimeData(data);
        // Told to whoever drives the drag: it would be lost if it were let go before the target has answered.
        connect(drag, &QDrag::actionChanged, this, [](Qt::DropAction action) {
            std::puts(action == Qt::IgnoreAction ? "refused" : "taken");
            std::fflush(stdout);
        });
        drag->exec(Qt::CopyAction | Qt::MoveAction);
    }

private:
    QUrl file_;
};

int main(int argc, char* argv[]) {
    QApplication application(argc, argv);
    DragSource source(QUrl::fromLocalFile(QString::fromLocal8Bit(argv[argc - 1])));
    source.show();
    return QApplication::exec();
}

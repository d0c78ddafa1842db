#include "platform/desktop/Time.h"

#include <QBasicTimer>
#include <QCoreApplication>
#include <QEventLoop>
#include <QObject>
#include <QThread>
#include <QTimer>

namespace {

class RealAlarm final : public QObject, public Alarm {
public:
    explicit RealAlarm(std::function<void()> due) : due_(std::move(due)) {}
    void Start(std::chrono::milliseconds interval) override {
        timer_.start(static_cast<int>(interval.count()), Qt::PreciseTimer, this);
    }
    void Stop() override { timer_.stop(); }

protected:
    void timerEvent(QTimerEvent* /*event*/) override { due_(); }

private:
    std::function<void()> due_;
    QBasicTimer timer_;
};

struct InputFilter final : QObject {
    bool eventFilter(QObject*, QEvent* event) override {
        const auto type = event->type();
        return type == QEvent::KeyPress || type == QEvent::KeyRelease || type == QEvent::MouseButtonPress ||
               type == QEvent::MouseButtonRelease || type == QEvent::MouseButtonDblClick;
    }
};

}  // namespace

void RealTime::Wait(std::chrono::milliseconds duration) {
    QThread::msleep(static_cast<unsigned long>(duration.count()));
}

void RealTime::ProcessEvents() {
    QCoreApplication::processEvents();
}

void RealTime::DropInput() {
    InputFilter filter;
    QCoreApplication::instance()->installEventFilter(&filter);
    QCoreApplication::processEvents();
}

bool RealTime::InBackground(std::function<void()> work, std::chrono::milliseconds most) {
    ++*running_;
    QThread* const thread = QThread::create([work = std::move(work), running = running_] {
        work();
        --*running;
    });
    QEventLoop loop;
    bool ended = false;
    QObject::connect(thread, &QThread::finished, thread, &QObject::deleteLater);
    QObject::connect(thread, &QThread::finished, &loop, [&] {
        ended = true;
        loop.quit();
    });
    QTimer::singleShot(most, &loop, &QEventLoop::quit);
    thread->start();
    loop.exec();
    return ended;
}

QDate RealTime::Today() const {
    return QDate::currentDate();
}

std::unique_ptr<Alarm> RealTime::NewAlarm(std::function<void()> due) {
    return std::make_unique<RealAlarm>(std::move(due));
}

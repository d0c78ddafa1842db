#include "platform/desktop/Time.h"

#include <QBasicTimer>
#include <QCoreApplication>
#include <QObject>
#include <QThread>

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

}  // namespace

void RealTime::Wait(std::chrono::milliseconds duration) {
    QThread::msleep(static_cast<unsigned long>(duration.count()));
}

void RealTime::ProcessEvents() {
    QCoreApplication::processEvents();
}

QDate RealTime::Today() const {
    return QDate::currentDate();
}

std::unique_ptr<Alarm> RealTime::NewAlarm(std::function<void()> due) {
    return std::make_unique<RealAlarm>(std::move(due));
}

#include "platform/Time.h"

#include <QCoreApplication>
#include <QThread>
#include <QTimer>

namespace {

class RealAlarm final : public Alarm {
public:
    explicit RealAlarm(std::function<void()> due) {
        timer_.setTimerType(Qt::PreciseTimer);
        timer_.callOnTimeout([due = std::move(due)] { due(); });
    }
    void Start(std::chrono::milliseconds interval) override { timer_.start(interval); }
    void Stop() override { timer_.stop(); }

private:
    QTimer timer_;
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

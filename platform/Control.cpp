#include "platform/Control.h"

namespace {

std::int16_t ButtonBits(Qt::MouseButtons buttons) {
    std::int16_t bits = 0;
    if (buttons & Qt::LeftButton) bits = static_cast<std::int16_t>(bits | kLeftButton);
    if (buttons & Qt::RightButton) bits = static_cast<std::int16_t>(bits | kRightButton);
    if (buttons & Qt::MiddleButton) bits = static_cast<std::int16_t>(bits | kMiddleButton);
    return bits;
}

}  // namespace

MouseInput ToMouseInput(const QMouseEvent& event) {
    const bool move = event.type() == QEvent::MouseMove;
    const auto keys = event.modifiers();
    const int shift = (keys & Qt::ShiftModifier ? 1 : 0) + (keys & Qt::ControlModifier ? 2 : 0) +
                      (keys & Qt::AltModifier ? 4 : 0);
    return {ButtonBits(move ? event.buttons() : Qt::MouseButtons(event.button())),
            static_cast<std::int16_t>(shift), static_cast<float>(event.position().x()),
            static_cast<float>(event.position().y())};
}

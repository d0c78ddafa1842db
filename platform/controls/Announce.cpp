#include "platform/controls/Announce.h"

#include "platform/controls/Control.h"

#if QT_VERSION >= QT_VERSION_CHECK(6, 8, 0)

void Announce(QWidget& window, const QString& sentence) {
    QAccessibleAnnouncementEvent event(&window, sentence);
    QAccessible::updateAccessibility(&event);
}

#else

// Older Qt has no such event: an invisible notification appears, again and again.
void Announce(QWidget& window, const QString& sentence) {
    if (!QAccessible::isActive()) return;
    using Notice = Control<QWidget>;
    const QString name = QStringLiteral("notice");
    auto* notice = static_cast<Notice*>(window.findChild<QWidget*>(name, Qt::FindDirectChildrenOnly));
    if (!notice) notice = new Notice(&window, {name, {0, 0, kTwipsPerPixel, kTwipsPerPixel}, {}});
    notice->setAttribute(Qt::WA_TransparentForMouseEvents);
    notice->access = {QAccessible::Notification, [sentence] { return sentence; }};
    QAccessibleEvent change(notice, QAccessible::NameChanged);
    QAccessible::updateAccessibility(&change);
    notice->hide();
    notice->show();
}

#endif

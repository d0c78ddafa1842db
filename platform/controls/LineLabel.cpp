#include "platform/controls/LineLabel.h"

#include <QHelpEvent>
#include <QTextDocument>
#include <QToolTip>
#include <algorithm>

namespace {

constexpr qsizetype kMostUnits = 200;  // laid out at most; damaged text can have any length

bool IsControl(QChar unit) {
    return unit.category() == QChar::Other_Control || unit == QChar::LineSeparator ||
           unit == QChar::ParagraphSeparator;
}

}  // namespace

// Control characters and line breaks become spaces.
QString LineLabel::Line() const {
    QString line = Caption().left(kMostUnits);
    std::replace_if(line.begin(), line.end(), IsControl, QChar(u' '));
    return line;
}

QString LineLabel::Elided(const QFont& font) const {
    return QFontMetrics(font).elidedText(Line(), Qt::ElideRight, width());
}

bool LineLabel::Fits(const QFont& font) const {
    return Elided(font) == Line();
}

QString LineLabel::Shown() const {
    return Elided(ShownFont());
}

bool LineLabel::event(QEvent* event) {
    if (event->type() != QEvent::ToolTip) return Label::event(event);
    const QString line = Line();
    // Escape as rich text: tooltips guess the format, and a name may look like markup.
    const QString tip = Shown() == line ? QString() : Qt::convertFromPlainText(line);
    QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), tip, this);
    return true;
}

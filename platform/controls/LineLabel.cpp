#include "platform/controls/LineLabel.h"

#include <QHelpEvent>
#include <QTextDocument>
#include <QToolTip>
#include <algorithm>

namespace {

constexpr qsizetype kMostUnits = 200;  // to lay out; damaged text may be of any length

bool IsControl(QChar unit) {
    return unit.category() == QChar::Other_Control;
}

}  // namespace

// Control characters become spaces, and any number of spaces and line breaks one.
QString LineLabel::Line() const {
    QString line = Caption().left(kMostUnits);
    std::replace_if(line.begin(), line.end(), IsControl, QChar(u' '));
    return line.simplified();
}

QString LineLabel::Shown() const {
    return fontMetrics().elidedText(Line(), Qt::ElideRight, width());
}

bool LineLabel::event(QEvent* event) {
    if (event->type() != QEvent::ToolTip) return Label::event(event);
    const QString line = Line();
    // As rich text made of plain text: tooltips guess, and a name may look like markup.
    const QString tip = Shown() == line ? QString() : Qt::convertFromPlainText(line);
    QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), tip, this);
    return true;
}

#include "platform/controls/Button.h"

#include <QTextBoundaryFinder>

void TextBox::MostLetters(int letters) {
    connect(this, &QLineEdit::textChanged, this, [this, letters](const QString& text) {
        QTextBoundaryFinder end(QTextBoundaryFinder::Grapheme, text);
        for (int letter = 0; letter < letters && end.position() < text.size(); ++letter) end.toNextBoundary();
        if (end.position() >= text.size()) return;
        const int cursor = cursorPosition();
        setText(text.first(end.position()));
        setCursorPosition(cursor);
    });
}

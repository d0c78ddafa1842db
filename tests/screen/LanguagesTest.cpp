// The window in each language of the program. TESSELOR_PICTURES in the environment names a folder for
// pictures of it, and of a made-up language of longer texts in brackets.

#include <QTranslator>

#include "tests/support/GameWindow.h"

namespace {

bool Fits(const QWidget* control) {
    if (const auto* label = dynamic_cast<const Label*>(control)) return label->Fits();
    const auto* button = qobject_cast<const QPushButton*>(control);
    return !button || button->fontMetrics().horizontalAdvance(button->text()) < button->width() - 4;
}

void TakePictures(GameWindow& game, const QString& language) {
    const QString folder = qEnvironmentVariable("TESSELOR_PICTURES");
    for (const int screen : {1, 2, 3, 0}) {
        if (folder.isEmpty()) return;
        game.form->imgButton_Click(static_cast<std::int16_t>(screen));
        game.form->grab().save(QStringLiteral("%1/%2-%3.png").arg(folder, language).arg(screen));
    }
}

// Texts are laid out in logical pixels: one scale stands for all.
TEST(Languages, FitTheirControls) {
    const QDir folder(":/translations");
    const QStringList languages = folder.entryList({"tesselor_*"});
    ASSERT_GT(languages.size(), 1);
    for (const QString& language : languages) {
        QTranslator texts;
        ASSERT_TRUE(texts.load(folder.filePath(language)) && QCoreApplication::installTranslator(&texts));
        QGuiApplication::setLayoutDirection(QLocale(texts.language()).textDirection());
        GameWindow game;
        for (const QWidget* control : game.form->findChildren<QWidget*>())
            EXPECT_TRUE(Fits(control) ||
                        !game.form->rect().contains(control->mapTo(game.form.get(), QPoint())))
                << (language + ' ' + control->objectName()).toStdString();
        TakePictures(game, texts.language());
    }
}

class MadeUp final : public QTranslator {
public:
    [[nodiscard]] bool isEmpty() const override { return false; }
    QString translate(const char* context, const char* text, const char*, int) const override {
        if (qstrcmp(context, "Tesselor") != 0) return {};
        const QString source = QString::fromUtf8(text);
        return '[' + source + QString(source.size() / 3, QChar(u'~')) + ']';
    }
};

// Every text that is shown or told.
QStringList Texts(const GameWindow& game) {
    QStringList texts = game.dialogs.told;
    for (const QWidget* control : game.form->findChildren<QWidget*>()) {
        if (const auto* label = dynamic_cast<const Label*>(control)) texts += label->Caption();
        if (const auto* button = qobject_cast<const QPushButton*>(control)) texts += button->text();
        if (const Access* access = AccessOf(control); access && access->name) texts += access->name();
        texts << control->toolTip() << control->accessibleName() << control->accessibleDescription();
    }
    return texts;
}

TEST(Languages, LeaveNothingInEnglish) {
    MadeUp texts;
    QCoreApplication::installTranslator(&texts);
    GameWindow game;
    TakePictures(game, "made-up");
    game.form->show();
    game.Drop(game.form->picSkin[0], {QUrl::fromLocalFile(game.folder.filePath("Art"))});
    for (const QString& told : game.dialogs.told) EXPECT_TRUE(told.startsWith('[')) << told.toStdString();
    // Names, web addresses, the key, and what is outside the window.
    const QStringList others{"Tesselor",
                             "tesselor.example",
                             "tesselor.example/play",
                             "test",
                             "P",
                             "X",
                             "CardsInMatrix",
                             "Score",
                             "cards",
                             "score",
                             "Print",
                             ""};
    for (const QString& text : Texts(game))
        EXPECT_TRUE(text.startsWith('[') || others.contains(text) || text.toInt() || text == "0")
            << text.toStdString();
}

}  // namespace

#pragma once

#include <QPlainTextEdit>

#include "platform/controls/Image.h"
#include "platform/controls/KeyboardFocus.h"
#include "platform/controls/Label.h"
#include "platform/controls/Shape.h"
#include "platform/files/ProgramFolder.h"
#include "shell/WindowShape.h"

// The information window: the rules text, read from "\Res\Tesselor rules.txt" each time the window is
// created. Without the file it is empty. Its button and Escape close it; its background moves it.
class frmInfo final : public QWidget, public HasAccess {
public:
    // `owner`: the game window, above which this one stays.
    frmInfo(QWidget* owner, const ProgramFolder& folder);

    void Form_Load(const ProgramFolder& folder);
    void Form_MouseMove(std::int16_t Button, std::int16_t Shift, float X, float Y);
    void imgButton_MouseMove(std::int16_t Button, std::int16_t Shift, float X, float Y);
    void imgButton_Click();
    void Form_Click() {}

    Image Background{this, {QStringLiteral("Background"), {0, 0, 4710, 5820}, {}}};
    QPlainTextEdit Text1{this};
    Shape shpArea;
    Label lblCaption;
    Image imgButton;
    FocusRing focusRing{this};

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void DressControls();
    void DressText();

    WindowMove move_;
};

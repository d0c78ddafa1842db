#include "screen/controls/BoardControls.h"

#include "platform/language/Tesselor.h"
#include "screen/Look.h"
#include "screen/Words.h"
#include "screen/frmGame.h"

BoardControls::BoardControls(QWidget* window)
    : fraScreen("fraScreen", {{{window, {750, 900, 3945, 3945}},
                               {window, {7140, 7800, 3915, 3915}, "Frame2"},
                               {window, {11190, 7800, 3915, 3915}, "Frame2"},
                               {window, {15240, 7800, 3915, 3915}, "Frame2"}}}) {
    fraScreen[0].BackColor(Look::kTray);
    const Picture panel = FirstArt("panel");
    for (const int screen : {1, 2, 3}) fraScreen[screen].Background(panel);
}

void BoardControls::ConnectBoard(frmGame& form) {
    OnEach(picMat, &PictureBox::onMouseDown, form, &frmGame::picMat_MouseDown);
    OnEach(picMat, &PictureBox::onMouseMove, form, &frmGame::picMat_MouseMove);

    fraScreen[0].access = {QAccessible::List, [&form] { return BoardInWords(form); }};
    const QString screens[] = {Tesselor::tr("levels and skins"), Tesselor::tr("help"),
                               Tesselor::tr("high scores")};
    for (const int screen : {1, 2, 3})
        fraScreen[screen].access = {QAccessible::Grouping, Fixed(screens[screen - 1])};
    for (std::int16_t cell = 0; cell < picMat.size(); ++cell) {
        // A press released beside the cells, or between them, is cancelled.
        picMat[cell].onMouseUp = [this, &form, cell](const MouseInput& in) {
            const QWidget* under = fraScreen[0].childAt(picMat[cell].pos() + QPoint(int(in.x), int(in.y)));
            if (under) form.picMat_MouseUp(cell, in.button, in.shift, in.x, in.y);
        };
        picMat[cell].access = {QAccessible::ListItem, [&form, cell] { return CellInWords(form, cell); },
                               [&form, cell] { form.LockInCell(cell); },
                               [&form, cell] { return form.IsActive(cell); }};
    }
}

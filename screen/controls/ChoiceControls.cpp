#include "screen/controls/ChoiceControls.h"

#include "platform/language/Tesselor.h"
#include "screen/Links.h"
#include "screen/Words.h"
#include "screen/controls/Dressing.h"
#include "screen/frmGame.h"

ChoiceControls::ChoiceControls(QWidget* itsScreen) : choices(itsScreen) {
    using Look::Text;
    const QString levelNames[] = {Tesselor::tr("practice"), Tesselor::tr("junior"), Tesselor::tr("senior"),
                                  Tesselor::tr("expert"), Tesselor::tr("master")};
    for (std::int16_t level = 0; level < lblClass.size(); ++level) {
        lblClass[level].Caption(levelNames[level]);
        Dress(lblClass[level], Text::Heading, Look::kLevel, kLeft);
        MakeClickable(lblClass[level]);
    }
    shpLevel.Look(Look::kBrass, QColor(0xFD, 0xF9, 0xEE), 4);
    Shape1.Look(Look::kDarkBrass, Look::kBrass, 2);
    for (Frame* well : {&Picture3, &Picture1}) well->BackColor(Look::kWell);
    for (PictureBox& slot : picSkin) {
        slot.BackColor(Look::kEmptySlot);
        MakeClickable(slot);
    }
    picCurrSkin.BackColor(Look::kEmptySlot);
    for (Label* heading : {&Label6, &Label7}) Dress(*heading, Text::Heading);
    for (Label* text : std::initializer_list<Label*>{&lblSkinName, &Label13}) Dress(*text, Text::Small);
    DressAsLink(Label14, Links::kHomeText);
}

void ChoiceControls::ConnectChoices(frmGame& form) {
    OnEach(picSkin, &PictureBox::onReleaseInside, form, &frmGame::picSkin_MouseUp);
    OnEach(picSkin, &PictureBox::onMouseMove, form, &frmGame::picSkin_MouseMove);
    OnEach(lblClass, &Label::onMouseMove, form, &frmGame::lblClass_MouseMove);
    Label14.onClick = [&form] { form.Label14_Click(); };

    Label14.access.press = Label14.onClick;
    for (Label* heading : {&Label6, &Label7}) heading->access = {};
    Picture3.access = {QAccessible::Grouping, [this] { return Label6.Caption().trimmed(); }};
    Picture1.access = {QAccessible::Grouping, [this] { return Label7.Caption(); }};
    for (std::int16_t level = 0; level < lblClass.size(); ++level) {
        Label& label = lblClass[level];
        label.onClick = [&form, level] { form.lblClass_Click(level); };
        label.access.role = QAccessible::RadioButton;
        label.access.press = label.onClick;
        label.access.chosen = [&form, level] { return form.CurrentLevel == level; };
    }
    for (std::int16_t slot = 0; slot < picSkin.size(); ++slot) {
        picSkin[slot].OnFileDrop([&form, slot](const QString& path) {
            std::int16_t index = slot;
            std::int32_t effect = 0;
            form.picSkin_OLEDragDrop(index, path, effect, 0, 0, 0, 0);
        });
        picSkin[slot].access = {QAccessible::RadioButton, [&form, slot] { return SkinInWords(form, slot); },
                                [&form, slot] { form.picSkin_MouseUp(slot, kLeftButton, 0, 0, 0); },
                                [&form, slot] { return slot < form.SkinCount && form.CurrentSkin == slot; }};
    }
    lblSkinName.access.name = [this] { return Tesselor::tr("Skin %1").arg(lblSkinName.Caption()); };
}

// The skins: which files fill the slots, the choice of one, and the picture set a game is played with.

#include "screen/SkinFiles.h"
#include "screen/frmGame.h"
#include "shell/mdlSound.h"

namespace {

const QString kSkinFolder = QStringLiteral("\\Art\\");
constexpr int kSlotFrameWidth = 2;
constexpr QPoint kThumbnailCorner(-12, -12);  // the cell's outer edge is cut off in the slot
constexpr QPoint kChosenCorner(-2, -2);

void DrawFrame(PictureBox& slot, Colour colour) {
    slot.DrawWidth(kSlotFrameWidth);
    slot.DrawBox({1, 1}, {slot.width() - 1, slot.height() - 1}, colour);
}

}  // namespace

void frmGame::FillSkinSlots() {
    SkinCount = 0;
    for (const QString& file : world_.folder.Files(kSkinFolder)) {
        if (SkinCount == picSkin.size()) break;
        if (!WhyNotASheet(world_.folder.Path(kSkinFolder + file)).isEmpty()) continue;
        skinFile[SkinCount] = file;
        ++SkinCount;
    }
    picSkin_MouseUp(0, 0, 0, 0, 0);
}

// Decoding takes far longer than showing the window, so it is deferred until after the first paint.
void frmGame::FinishSkinSlots() {
    if (skinsFinished_ || unloaded_) return;  // a window may be closed right after its first paint
    skinsFinished_ = true;
    for (std::int16_t slot = 0; slot < SkinCount;) {
        const QString path = world_.folder.Path(kSkinFolder + skinFile[slot]);
        if (!PicClipTemp.Load(path).isEmpty()) {
            CloseUpSlot(slot);
            continue;
        }
        picSkin[slot].PaintPicture(PicClipTemp.Thumbnail(), kThumbnailCorner);
        PicClipTemp = {};  // the other cards of a skin are not needed for its slot
        ++slot;
    }
    OrderSkinSlots();
    ChooseSkin(0);
}

// Makes slot `slot` that of the skin `file`, which lies in the skin folder; the first empty slot comes into
// use.
void frmGame::FillSlot(std::int16_t slot, const QString& file) {
    if (!PicClipTemp.Load(world_.folder.Path(kSkinFolder + file)).isEmpty()) return;
    skinFile[slot] = file;
    PictureBox& box = picSkin[slot];
    box.Clear();
    box.PaintPicture(PicClipTemp.Thumbnail(), kThumbnailCorner);
    PicClipTemp = {};
    if (slot >= SkinCount && SkinCount < picSkin.size()) ++SkinCount;
    OrderSkinSlots();
}

void frmGame::picSkin_OLEDragDrop(std::int16_t& Index, const QString& Data, std::int32_t&, std::int16_t,
                                  std::int16_t, float, float) {
    if (Index < 0 || Index >= picSkin.size()) return;
    FinishSkinSlots();
    Index = std::min(Index, SkinCount);
    const QString folder = world_.folder.Path(kSkinFolder);
    QString name = NameInFolder(Data, folder);
    if (const qsizetype known = name.isEmpty() ? -1 : skinFile.indexOf(name); known >= 0)
        Index = static_cast<std::int16_t>(known);
    else if (name.isEmpty() && (name = Install(Data, folder, Index)).isEmpty())
        return;
    FillSlot(Index, name);
    picSkin_MouseUp(Index, 0, 0, 0, 0);
    picSkin_MouseMove(Index, 0, 0, 0, 0);
}

// The name under which the dropped file came into the skin folder; empty when the player was told why not, or
// would not have the old skin replaced.
QString frmGame::Install(const QString& dropped, const QString& folder, std::int16_t slot) {
    if (const QString why = WhyNotASheet(dropped); !why.isEmpty())
        return world_.dialogs.Tell(this, why), QString();
    if (slot < SkinCount &&
        !world_.dialogs.Ask(this, QStringLiteral("Are You Sure You want To Replace This Skin !")))
        return {};
    const QString replaced = slot < SkinCount ? skinFile[slot] : QString();
    const InstalledSkin installed = InstallSkin(dropped, folder, replaced);
    if (!installed.problem.isEmpty()) world_.dialogs.Tell(this, installed.problem);
    return installed.name;
}

void frmGame::CloseUpSlot(std::int16_t slot) {
    skinFile.removeAt(slot);
    skinFile.append(QString());
    --SkinCount;
}

void frmGame::picSkin_MouseMove(std::int16_t Index, std::int16_t, std::int16_t, float, float) {
    if (Index < 0 || Index >= SkinCount || Index == HoverSkin) return;
    DrawFrame(picSkin[HoverSkin], kWhite);
    DrawFrame(picSkin[Index], kRed);
    HoverSkin = Index;
    mdlSound::PlayWave(mdlSound::Wave(104));
}

void frmGame::picSkin_MouseUp(std::int16_t Index, std::int16_t, std::int16_t, float, float) {
    if (Index < 0 || Index >= SkinCount) return;
    ChooseSkin(Index);
    mdlSound::PlayWave(mdlSound::Wave(102));
}

void frmGame::ChooseSkin(std::int16_t slot) {
    const QString& file = skinFile[slot];
    PictureBox& box = picSkin[slot];
    DrawFrame(picSkin[CurrentSkin], kWhite);
    Game().SetSkinPicture(file.toStdString());
    picCurrSkin.Clear();
    picCurrSkin.PaintPicture(box.Image(), kChosenCorner);
    lblSkinName.Caption(file.chopped(qMin<qsizetype>(4, file.size())));
    CurrentSkin = slot;
    DrawFrame(box, kRed);
}

QString frmGame::LoadSkin() {
    const QString name = QString::fromStdString(Game().SetSkinPicture());
    if (!name.isEmpty()) return PicClip1.Load(world_.folder.Path(kSkinFolder + name));
    return QStringLiteral("No skins were found. A skin is a picture of 3 x 13 cards; put one in %1.")
        .arg(world_.folder.Path(kSkinFolder));
}

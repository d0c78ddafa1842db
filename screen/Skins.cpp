// The skins: which files fill the slots, the choice of one, and the picture set a game is played with.

#include "platform/language/Tesselor.h"
#include "platform/memory/Memory.h"
#include "screen/Look.h"
#include "screen/frmGame.h"
#include "screen/storage/SkinFiles.h"
#include "shell/mdlSound.h"

namespace {

const QString kSkinFolder = QStringLiteral("\\Art\\");
constexpr int kSlotFrameWidth = 2;
constexpr QPoint kThumbnailCorner(-12, -12);  // the cell's outer edge is cut off in the slot
constexpr QPoint kChosenCorner(-2, -2);

constexpr auto kToNotice = std::chrono::seconds(3);  // that the time is up: a decoder reads now and then

// A dash in its middle: its skin has not been read yet.
void DrawWaiting(PictureBox& slot) {
    slot.DrawFilledBox({12, 19}, {27, 22}, Look::kLevel);
}

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
        DrawWaiting(picSkin[SkinCount]);
        ++SkinCount;
    }
    picSkin_MouseUp(0, 0, 0, 0, 0);
}

// What `load` loads, in a thread of its own: the window stays alive, so anything may have happened when this
// returns.
template <class Loaded>
Loaded frmGame::InBackground(Loaded (*load)(const QString& path, QString& why), const QString& path,
                             QString& why) {
    struct Result {
        Loaded loaded;
        QString why;
    };
    const auto result = std::make_shared<Result>();
    const auto work = [result, load, path] { result->loaded = load(path, result->why); };
    const bool ended = world_.time.InBackground(work, kMostDecoding + kToNotice);
    why = ended ? result->why : WhyTooSlow(path);
    return ended ? result->loaded : Loaded();
}

// Decoding takes far longer than showing the window, so it is deferred until after the first paint.
void frmGame::FinishSkinSlots() {
    if (skinsFinished_ || unloaded_) return;  // a window may be closed right after its first paint
    skinsFinished_ = true;
    for (std::int16_t slot = 0; slot < SkinCount;) {
        const QString file = skinFile[slot], path = world_.folder.Path(kSkinFolder + file);
        QString why;
        const Picture thumbnail = InBackground(PictureSheet::LoadThumbnail, path, why);
        if (unloaded_) return;
        if (skinFile[slot] != file) continue;  // another was dropped there meanwhile
        if (thumbnail.IsEmpty())
            CloseUpSlot(slot);
        else
            ShowInSlot(slot++, thumbnail);
        if (why == WhyTooSlow(path)) world_.dialogs.Tell(this, why);
    }
    OrderSkinSlots();
    SkinCount > 0 ? ChooseSkin(std::min<std::int16_t>(CurrentSkin, SkinCount - 1)) : ChooseNoSkin();
    Memory::ReturnCode("");  // most of it was needed only by the start
}

void frmGame::ShowInSlot(std::int16_t slot, const Picture& thumbnail) {
    picSkin[slot].Clear();
    picSkin[slot].PaintPicture(thumbnail, kThumbnailCorner);
}

void frmGame::picSkin_OLEDragDrop(std::int16_t& Index, const QString& Data, std::int32_t&, std::int16_t,
                                  std::int16_t, float, float) {
    if (Index < 0 || Index >= picSkin.size()) return;
    FinishSkinSlots();
    QString why;
    const auto sheet = InBackground(PictureSheet::Load, Data, why);
    if (unloaded_) return;
    if (!sheet) return world_.dialogs.Tell(this, why);
    Index = std::min(Index, SkinCount);
    const QString folder = world_.folder.Path(kSkinFolder);
    QString name = NameInFolder(Data, folder);
    if (const qsizetype known = name.isEmpty() ? -1 : skinFile.indexOf(name); known >= 0)
        Index = static_cast<std::int16_t>(known);
    else if (name.isEmpty())
        name = Install(*sheet, Data, folder, Index);
    if (name.isEmpty()) return;
    // The slot becomes that of the skin; the first empty one comes into use.
    skinFile[Index] = name;
    ShowInSlot(Index, sheet->Thumbnail());
    if (Index >= SkinCount && SkinCount < picSkin.size()) ++SkinCount;
    OrderSkinSlots();
    picSkin_MouseUp(Index, 0, 0, 0, 0);
    picSkin_MouseMove(Index, 0, 0, 0, 0);
}

// The name under which the dropped file came into the skin folder; empty when the player was told why not, or
// would not have the old skin replaced.
QString frmGame::Install(const PictureSheet& sheet, const QString& dropped, const QString& folder,
                         std::int16_t slot) {
    if (slot < SkinCount &&
        !world_.dialogs.Ask(this, Tesselor::tr("Are You Sure You want To Replace This Skin !")))
        return {};
    const QString replaced = slot < SkinCount ? skinFile[slot] : QString();
    const InstalledSkin installed = InstallSkin(sheet, dropped, folder, replaced);
    if (!installed.problem.isEmpty()) world_.dialogs.Tell(this, installed.problem);
    return installed.name;
}

void frmGame::CloseUpSlot(std::int16_t slot) {
    skinFile.removeAt(slot);
    skinFile.append(QString());
    for (std::int16_t later = slot; later < SkinCount; ++later) {
        picSkin[later].Clear();
        if (later + 1 < SkinCount) DrawWaiting(picSkin[later]);
    }
    --SkinCount;
    if (slot < CurrentSkin) --CurrentSkin;
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

void frmGame::ChooseNoSkin() {
    picSkin[CurrentSkin].Clear();
    picCurrSkin.Clear();
    Game().SetSkinPicture({});
    lblSkinName.Caption({});
}

QString frmGame::LoadSkin() {
    const QString name = QString::fromStdString(Game().SetSkinPicture());
    const auto load = [this](const QString& path, QString& why) {
        return InBackground(PictureSheet::Load, path, why);
    };
    if (!name.isEmpty()) return PicClip1.Load(world_.folder.Path(kSkinFolder + name), load);
    return Tesselor::tr("No skins were found. A skin is a picture of 3 x 13 cards; put one in %1.")
        .arg(world_.folder.Path(kSkinFolder));
}

#include "tests/real/Player.h"

#include <QDir>
#include <QPainter>

#include "platform/Colour.h"

namespace {

constexpr int kStart = 12;

// The picture as a board cell shows it: on white.
QImage OnWhite(const QImage& picture) {
    QImage shown(picture.size(), QImage::Format_RGB32);
    shown.fill(Qt::white);
    QImage flat = picture;
    flat.setDevicePixelRatio(1);
    QPainter(&shown).drawImage(0, 0, flat);
    return shown;
}

// The middle of a cell, which the frame leaves alone.
QImage Middle(const QImage& cell) {
    const int edge = cell.width() / 6;
    return cell.copy(cell.rect().adjusted(edge, edge, -edge, -edge));
}

QImage Shaded(QImage image) {
    const QRgb face = qRgb(0x9F, 0xB0, 0xD0);
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x) image.setPixel(x, y, image.pixel(x, y) & face);
    return image;
}

bool IsOneColour(const QImage& image, QRgb colour) {
    QImage plain(image.size(), QImage::Format_RGB32);
    plain.fill(colour);
    return image == plain;
}

}  // namespace

Player::Player(int scale, const QString& home, const QString& program) : scale_(scale) {
    QString why;
    const QDir art((home.isEmpty() ? QStringLiteral(TESSELOR_BUILD) : home) + "/Art");
    const QStringList skins = art.entryList(QDir::Files, QDir::Name | QDir::IgnoreCase);
    const auto sheet = PictureSheet::Load(art.filePath(skins.value(0)), why);
    for (int k = 0; sheet && k < kSheetCells; ++k)
        cards_[static_cast<std::size_t>(k)] = OnWhite(sheet->Render(k, scale));
    QProcessEnvironment environment = display_.Environment();
    environment.insert("QT_SCALE_FACTOR", QString::number(scale));
    environment.insert("LC_ALL", "C.UTF-8");
    if (!home.isEmpty()) environment.insert("TESSELOR_HOME", home);
    game_.setProcessEnvironment(environment);
    game_.setProcessChannelMode(QProcess::ForwardedChannels);
    game_.start(program.isEmpty() ? QStringLiteral(TESSELOR_BUILD "/tesselor") : program, {});
    window_ = std::make_unique<RealWindow>(display_.Name(), "Tesselor");
    const auto isPainted = [this] { return qBlue(window_->Look({5, 200, 1, 1}).pixel(0, 0)) > 20; };
    if (window_->Found()) window_->Await(isPainted);
}

Player::~Player() {
    if (game_.state() == QProcess::NotRunning) return;
    game_.terminate();
    if (!game_.waitForFinished(5000)) game_.kill(), game_.waitForFinished(5000);
}

QRect Player::Cell(int cell) const {
    const QRect place = Spot::Cell(cell);
    return {place.topLeft() * scale_, place.size() * scale_};
}

int Player::CardAt(int cell) const {
    const QImage seen = Middle(window_->Look(Cell(cell)));
    if (IsOneColour(seen, 0xFFFFFFFF)) return kNothing;
    for (int k = 0; k < kSheetCells; ++k) {
        const QImage card = Middle(cards_[static_cast<std::size_t>(k)]);
        if (seen == card || seen == Shaded(card)) return k;
    }
    return kUnclear;
}

std::array<int, 16> Player::Board() const {
    std::array<int, 16> board{};
    for (int cell = 0; cell < 16; ++cell) board[static_cast<std::size_t>(cell)] = CardAt(cell);
    return board;
}

int Player::NextCard() const {
    const QImage seen = Middle(window_->Look({54 * scale_, 331 * scale_, 60 * scale_, 60 * scale_}));
    for (int k = 0; k < kSheetCells; ++k)
        if (seen == Middle(cards_[static_cast<std::size_t>(k)])) return k;
    return kUnclear;
}

bool Player::IsFramed(int cell) const {
    const QImage edge =
        window_->Look(QRect(Cell(cell).topLeft() + QPoint(20, 2) * scale_, QSize(20, 1) * scale_));
    for (int x = 0; x < edge.width(); ++x)
        if (qGreen(edge.pixel(x, 0)) != 0 || qBlue(edge.pixel(x, 0)) != 0 || qRed(edge.pixel(x, 0)) < 100)
            return false;
    return true;
}

bool Player::IsBlack(int cell) const {
    return IsOneColour(window_->Look(Cell(cell)), 0xFF000000);
}

bool Player::IsCovered() const {
    for (const int cell : {0, 1, 2, 3, 12, 13, 14, 15})
        if (window_->Look(Cell(cell)) != cards_[36]) return false;
    return true;
}

bool Player::AwaitTurn() {
    const auto turnBegins = [this] {
        if (IsCovered()) return true;
        for (int cell = 0; cell < 16; ++cell)
            if (IsBlack(cell)) return sawFlash_ = true, false;
        if (!IsFramed(kStart)) return false;
        for (int cell = 0; cell < 16; ++cell)
            if (cell != kStart && IsFramed(cell)) return false;
        return NextCard() != kUnclear;
    };
    return window_->Await(turnBegins);
}

bool Player::AwaitChange(const QImage& before) const {
    return window_->Await([&] { return window_->Look() != before; });
}

void Player::MoveByKeys(int to) const {
    int from = 0;
    while (from < 15 && !IsFramed(from)) ++from;
    const int right = to % 4 - from % 4, down = to / 4 - from / 4;
    for (int i = 0; i < qAbs(right); ++i) window_->Key(right > 0 ? "Right" : "Left");
    for (int i = 0; i < qAbs(down); ++i) window_->Key(down > 0 ? "Down" : "Up");
    window_->Await([&] { return IsFramed(to); });
}

bool Player::MoveByMouse(int to) {
    if (std::exchange(mouseCell_, to) == to) return false;
    window_->MoveMouse(Cell(to).center());
    return window_->Await([&] { return IsFramed(to); });
}

void Player::Photograph(const char* name) const {
    const QString folder = qEnvironmentVariable("TESSELOR_SHOTS");
    if (!folder.isEmpty()) window_->Look().save(QString("%1/%2@%3.png").arg(folder, name).arg(scale_));
}

int Player::Leave() {
    Click(Spot::kExit);
    return AwaitEnd();
}

int Player::AwaitEnd() {
    return game_.waitForFinished(10000) ? game_.exitCode() : -1;
}

void Player::EndWindowManager() {
    display_.EndWindowManager();
    window_->Focus();
}

void Player::KillDisplay() {
    window_.reset();
    display_.Kill();
}

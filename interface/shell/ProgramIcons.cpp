// SPDX-License-Identifier: MIT
#include "interface/shell/ProgramIcons.h"

#include "interface/shell/Images.h"

#include <QFileInfo>
#include <QIcon>
#include <QImageReader>
#include <QPainter>
#include <QTimer>

#include <algorithm>
#include <cmath>

namespace {

constexpr int kMostKilobytes = 4096;
// More rows than a screen shows; whoever scrolls on no longer needs the first ones.
constexpr std::size_t kMostWanted = 200;
constexpr int kMostUntold = 10;
// Whatever a path leads to: larger pictures are not icons.
constexpr int kLargestSide = 2048;

// Entries may name files with their ending, which themes do not know.
QString inTheme(const QString& name) {
    for (const char* ending : {".png", ".svg", ".xpm"})
        if (name.endsWith(QLatin1String(ending)))
            return name.chopped(4);
    return name;
}

QPixmap pictureAt(const QString& path, int pixels) {
    QImageReader reader(path);
    const QSize size = reader.size();
    if (size.isEmpty() || std::max(size.width(), size.height()) > kLargestSide)
        return {};
    reader.setScaledSize(size.scaled(pixels, pixels, Qt::KeepAspectRatio));
    return QPixmap::fromImageReader(&reader);
}

// In the middle of a square of so many pixels.
QPixmap squared(const QPixmap& picture, int pixels) {
    QPixmap square(pixels, pixels);
    square.fill(Qt::transparent);
    QPainter painter(&square);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    const QSize size = picture.size().scaled(pixels, pixels, Qt::KeepAspectRatio);
    painter.drawPixmap(QRect(QPoint((pixels - size.width()) / 2, (pixels - size.height()) / 2), size),
                       picture);
    return square;
}

} // namespace

ProgramIcons::ProgramIcons(NameOf nameOf, QObject* parent)
    : QObject(parent)
    , m_nameOf(std::move(nameOf))
    , m_kept(kMostKilobytes) {}

QPixmap ProgramIcons::icon(const QString& program, int size, double scale) {
    const QString key = QStringLiteral("%1/%2/%3/").arg(size).arg(scale).arg(QIcon::themeName()) + program;
    if (const QPixmap* kept = m_kept.object(key))
        return *kept;
    if (std::ranges::find(m_wanted, key, &Wanted::key) != m_wanted.end())
        return {};
    if (m_wanted.empty())
        QTimer::singleShot(0, this, &ProgramIcons::findNext);
    m_wanted.push_back({key, program, size, scale});
    if (m_wanted.size() > kMostWanted)
        m_wanted.pop_front();
    return {};
}

void ProgramIcons::findNext() {
    const Wanted wanted = m_wanted.front();
    m_wanted.pop_front();
    auto* icon = new QPixmap(read(wanted));
    m_kept.insert(wanted.key, icon, 1 + icon->width() * icon->height() * 4 / 1024);
    if (!m_wanted.empty())
        QTimer::singleShot(0, this, &ProgramIcons::findNext);
    // Who shows them paints all its rows again, so not for each of many.
    if (m_wanted.empty() || ++m_untold == kMostUntold) {
        m_untold = 0;
        Q_EMIT found();
    }
}

QPixmap ProgramIcons::read(const Wanted& wanted) const {
    const int pixels = int(std::lround(wanted.size * wanted.scale));
    const QString name = m_nameOf(wanted.program).value_or(QString());
    QPixmap picture;
    if (QFileInfo(name).isAbsolute())
        picture = pictureAt(name, pixels);
    else if (!name.isEmpty())
        picture = QIcon::fromTheme(inTheme(name)).pixmap(QSize(wanted.size, wanted.size), wanted.scale);
    if (picture.isNull())
        picture = Images::named(QStringLiteral("Program")).pixmap(QSize(pixels, pixels), 1.0);
    QPixmap icon = squared(picture, pixels);
    icon.setDevicePixelRatio(wanted.scale);
    return icon;
}

// SPDX-License-Identifier: MIT
#include "interface/shell/Images.h"

#include <QFile>
#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>
#include <QPixmapCache>
#include <QSvgRenderer>

namespace {

const QString kApplicationImage = QStringLiteral("org.ticklog.Ticklog");
const QString kRecordingBadge = QStringLiteral("Dock-Ticklog-Recording");

QString fileOf(QString name) {
    for (const QLatin1String& ending : {QLatin1String(".png"), QLatin1String(".jpg")})
        if (name.endsWith(ending))
            name.chop(ending.size());
    return QStringLiteral(":/images/%1.svg").arg(name);
}

enum class Colors { Own, OfTexts };

// Draws several pictures over each other.
class OutlineIconEngine : public QIconEngine {
public:
    explicit OutlineIconEngine(QStringList names, Colors colors = Colors::Own)
        : m_names(std::move(names))
        , m_colors(colors) {}

    QIconEngine* clone() const override { return new OutlineIconEngine(*this); }

    bool isNull() override { return m_names.isEmpty(); }

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override {
        const qreal scale = painter->device()->devicePixelRatioF();
        painter->drawPixmap(rect, scaledPixmap(rect.size() * scale, mode, state, scale));
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        return scaledPixmap(size, mode, state, 1);
    }

    QPixmap scaledPixmap(const QSize& size, QIcon::Mode mode, QIcon::State, qreal) override {
        const QString key =
            QStringLiteral("%1/%2x%3/%4/%5")
                .arg(m_names.join(u'+'))
                .arg(size.width())
                .arg(size.height())
                .arg(int(mode))
                .arg(m_colors == Colors::OfTexts ? color(mode).name(QColor::HexArgb) : QString());
        QPixmap pixmap;
        if (!QPixmapCache::find(key, &pixmap)) {
            pixmap = draw(size, mode);
            QPixmapCache::insert(key, pixmap);
        }
        return pixmap;
    }

private:
    QPixmap draw(const QSize& size, QIcon::Mode mode) const {
        QPixmap pixmap(size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        if (mode == QIcon::Disabled && m_colors == Colors::Own)
            painter.setOpacity(0.4);
        for (const QString& name : m_names) {
            QSvgRenderer outlines(fileOf(name));
            outlines.setAspectRatioMode(Qt::KeepAspectRatio);
            outlines.render(&painter, QRectF(QPointF(), size));
        }
        if (m_colors == Colors::OfTexts) {
            painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
            painter.fillRect(pixmap.rect(), color(mode));
        }
        return pixmap;
    }

    static QColor color(QIcon::Mode mode) {
        return QGuiApplication::palette().color(
            mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Active,
            mode == QIcon::Selected ? QPalette::HighlightedText : QPalette::ButtonText);
    }

    QStringList m_names;
    Colors m_colors;
};

QIcon icon(const QStringList& names) {
    QStringList found;
    for (const QString& name : names)
        if (QFile::exists(fileOf(name)))
            found << name;
    return found.isEmpty() ? QIcon() : QIcon(new OutlineIconEngine(found));
}

} // namespace

QIcon Images::named(const QString& name) {
    return icon({name});
}

QIcon Images::symbol(const QString& name) {
    return QFile::exists(fileOf(name)) ? QIcon(new OutlineIconEngine({name}, Colors::OfTexts)) : QIcon();
}

QIcon Images::application(bool isRecording) {
    return icon(isRecording ? QStringList{kApplicationImage, kRecordingBadge}
                            : QStringList{kApplicationImage});
}

QSize Images::size(const QString& name) {
    const QString file = fileOf(name);
    return QFile::exists(file) ? QSvgRenderer(file).defaultSize() : QSize();
}

QPixmap Images::stretched(const QString& name, const QSize& size, qreal scale) {
    const QSize pixels = (QSizeF(size) * scale).toSize();
    const QString key =
        QStringLiteral("stretched %1/%2x%3").arg(name).arg(pixels.width()).arg(pixels.height());
    QPixmap pixmap;
    if (!QPixmapCache::find(key, &pixmap)) {
        pixmap = QPixmap(pixels);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        if (const QString file = fileOf(name); QFile::exists(file))
            QSvgRenderer(file).render(&painter, QRectF(QPointF(), pixels));
        painter.end();
        QPixmapCache::insert(key, pixmap);
    }
    pixmap.setDevicePixelRatio(scale);
    return pixmap;
}

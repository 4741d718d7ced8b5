// SPDX-License-Identifier: MIT
#include "interface/shell/Images.h"

#include "tests/Places.h"

#include <QDir>
#include <QIcon>
#include <QImage>

#include <gtest/gtest.h>

namespace {

bool isBlank(const QImage& image) {
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (qAlpha(image.pixel(x, y)) != 0)
                return false;
    return true;
}

} // namespace

TEST(Images, everyPictureOfTheRepository_isInTheProgramAndCanBeDrawn) {
    QStringList names =
        QDir(QStringLiteral(TICKLOG_SOURCE_DIR "/resources/images")).entryList({QStringLiteral("*.svg")});
    names << QStringLiteral("org.ticklog.Ticklog.svg");
    EXPECT_GT(names.size(), 20);
    for (const QString& name : names) {
        const QIcon icon(QStringLiteral(":/images/") + name);
        for (const int size : {16, 22, 32, 48})
            EXPECT_FALSE(isBlank(icon.pixmap(size).toImage())) << qPrintable(name) << " at " << size;
    }
}

TEST(Images, aSymbol_hasTheColourOfTextsInWhateverPalette) {
    const QPalette before = QGuiApplication::palette();
    const auto colorOf = [](QIcon::Mode mode) {
        const QIcon icon = Images::symbol(QStringLiteral("ToolbarPause"));
        // In the left of its two bars.
        return icon.pixmap(QSize(32, 32), mode).toImage().pixelColor(10, 16);
    };
    for (const QColor& text : {QColor(Qt::black), QColor(Qt::white)}) {
        QPalette palette = before;
        palette.setColor(QPalette::ButtonText, text);
        palette.setColor(QPalette::Disabled, QPalette::ButtonText, Qt::gray);
        QGuiApplication::setPalette(palette);
        EXPECT_EQ(colorOf(QIcon::Normal), text);
        EXPECT_EQ(colorOf(QIcon::Disabled), QColor(Qt::gray));
    }
    QGuiApplication::setPalette(before);
    EXPECT_TRUE(Images::symbol(QStringLiteral("no such picture")).isNull());
}

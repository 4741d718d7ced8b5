// SPDX-License-Identifier: MIT
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

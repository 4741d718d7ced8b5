// SPDX-License-Identifier: MIT
#include <QIcon>
#include <QImage>

#include <gtest/gtest.h>

TEST(Images, everyPicture_isThereAndNotEmpty) {
    for (const char* name :
         {"org.ticklog.Ticklog", "Dock-Ticklog-Recording", "ToolbarClear", "ToolbarPause", "ToolbarStart"}) {
        const QIcon icon(QStringLiteral(":/images/%1.svg").arg(QLatin1String(name)));
        const QImage image = icon.pixmap(32).toImage().convertToFormat(QImage::Format_ARGB32);
        bool isEmpty = true;
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                isEmpty = isEmpty && qAlpha(image.pixel(x, y)) == 0;
        EXPECT_FALSE(isEmpty) << name;
    }
}

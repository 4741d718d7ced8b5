// SPDX-License-Identifier: MIT
#include "interface/shell/ProgramIcons.h"

#include <QCoreApplication>
#include <QDir>
#include <QIcon>
#include <QImage>
#include <QSignalSpy>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

struct ProgramIconsTest : testing::Test {
    ~ProgramIconsTest() override {
        QIcon::setThemeSearchPaths(m_paths);
        QIcon::setThemeName(m_theme);
    }

    QString picture(const QString& name, const QSize& size, const QColor& color) {
        QImage image(size, QImage::Format_ARGB32);
        image.fill(color);
        const QString path = folder.filePath(name);
        QDir().mkpath(QFileInfo(path).path());
        image.save(path);
        return path;
    }

    // A theme with an icon "draw" of two sizes.
    void wearTheme() {
        picture(QStringLiteral("ours/16/draw.png"), {16, 16}, Qt::red);
        picture(QStringLiteral("ours/32/draw.png"), {32, 32}, Qt::blue);
        QFile index(folder.filePath(QStringLiteral("ours/index.theme")));
        ASSERT_TRUE(index.open(QFile::WriteOnly));
        index.write("[Icon Theme]\nName=ours\nDirectories=16,32\n\n[16]\nSize=16\nType=Fixed\n\n"
                    "[32]\nSize=32\nType=Fixed\n");
        index.close();
        QIcon::setThemeSearchPaths({folder.path()});
        QIcon::setThemeName(QStringLiteral("ours"));
    }

    QPixmap found(const char* program, int size = 16, double scale = 1) {
        const QString name = QString::fromUtf8(program);
        if (const QPixmap known = icons.icon(name, size, scale); !known.isNull())
            return known;
        QSignalSpy found(&icons, &ProgramIcons::found);
        while (found.isEmpty())
            QCoreApplication::processEvents();
        return icons.icon(name, size, scale);
    }

    static QColor middleOf(const QPixmap& icon) {
        return icon.toImage().pixelColor(icon.width() / 2, icon.height() / 2);
    }

    QTemporaryDir folder;
    QHash<QString, QString> names;
    QStringList asked;
    ProgramIcons icons{[this](const QString& program) {
        asked << program;
        return names.contains(program) ? std::optional(names.value(program)) : std::nullopt;
    }};

private:
    QStringList m_paths = QIcon::themeSearchPaths();
    QString m_theme = QIcon::themeName();
};

TEST_F(ProgramIconsTest, anIcon_isLookedForOnceAndLater) {
    names.insert(QStringLiteral("Draw"), picture(QStringLiteral("a.png"), {64, 64}, Qt::red));
    EXPECT_TRUE(icons.icon(QStringLiteral("Draw"), 16, 1).isNull());
    EXPECT_TRUE(icons.icon(QStringLiteral("Draw"), 16, 1).isNull());
    EXPECT_TRUE(asked.isEmpty()) << "who paints does not wait for it";
    EXPECT_EQ(middleOf(found("Draw")), QColor(Qt::red));
    found("Draw");
    EXPECT_EQ(asked.size(), 1);
}

TEST_F(ProgramIconsTest, atScaleTwo_theSharperPictureIsTaken) {
    wearTheme();
    names.insert(QStringLiteral("Draw"), QStringLiteral("draw"));
    names.insert(QStringLiteral("Old"), QStringLiteral("draw.png"));
    const QPixmap one = found("Draw", 16, 1);
    EXPECT_EQ(one.size(), QSize(16, 16));
    EXPECT_EQ(middleOf(one), QColor(Qt::red));
    const QPixmap two = found("Draw", 16, 2);
    EXPECT_EQ(two.size(), QSize(32, 32));
    EXPECT_EQ(two.devicePixelRatio(), 2);
    EXPECT_EQ(middleOf(two), QColor(Qt::blue));
    EXPECT_EQ(middleOf(found("Old", 16, 1)), QColor(Qt::red)) << "entries may name it with its ending";
}

TEST_F(ProgramIconsTest, aProgramWithoutAnIcon_hasTheNeutralOne) {
    names.insert(QStringLiteral("Lost"), QStringLiteral("/no/such/file.png"));
    names.insert(QStringLiteral("Strange"), QStringLiteral("no-such-icon"));
    names.insert(QStringLiteral("Huge"), picture(QStringLiteral("b.png"), {4000, 10}, Qt::red));
    const QImage neutral = found("Nobody").toImage();
    EXPECT_EQ(neutral.size(), QSize(16, 16));
    EXPECT_NE(neutral, QImage(16, 16, neutral.format()));
    for (const char* program : {"Lost", "Strange", "Huge"})
        EXPECT_EQ(found(program).toImage(), neutral) << program;
}

TEST_F(ProgramIconsTest, anOblongPicture_keepsItsShape) {
    names.insert(QStringLiteral("Wide"), picture(QStringLiteral("c.png"), {64, 32}, Qt::red));
    const QImage icon = found("Wide").toImage();
    EXPECT_EQ(icon.pixelColor(8, 8), QColor(Qt::red));
    EXPECT_EQ(icon.pixelColor(8, 1).alpha(), 0);
}

TEST_F(ProgramIconsTest, manyIcons_areNotKeptForever) {
    // A quarter of a megabyte each.
    for (int number = 0; number < 20; ++number)
        found(qPrintable(QString::number(number)), 128, 2);
    found("19", 128, 2);
    EXPECT_EQ(asked.size(), 20);
    found("0", 128, 2);
    EXPECT_EQ(asked.size(), 21) << "the first was forgotten";
}

} // namespace

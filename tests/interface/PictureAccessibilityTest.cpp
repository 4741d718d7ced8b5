// SPDX-License-Identifier: MIT
// The pictures of the history as assistive programs read them.
#include "interface/history/DayPicture.h"
#include "interface/history/PeriodPicture.h"
#include "tests/fakes/FakePlatform.h"
#include "tests/interface/PlainSpaces.h"

#include <QAccessible>
#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 kHour = 3600 * 1000;
const QDate kDay(2026, 11, 19);

struct PictureAccessibilityTest : testing::Test {
    PictureAccessibilityTest() {
        window.resize(900, 400);
        for (QWidget* picture : {static_cast<QWidget*>(&day), static_cast<QWidget*>(&period)}) {
            picture->setParent(&window);
            picture->resize(900, 160);
            picture->show();
        }
        window.show();
        const qint64 nine = QDateTime(kDay, QTime(9, 0)).toMSecsSinceEpoch();
        day.show(nine - 9 * kHour, nine + 15 * kHour,
                 {{nine, kHour, u"Mail"_s, u"Inbox"_s, {u"Meier"_s}},
                  {nine + kHour, 2 * kHour, u"Writer"_s, {}, {}}},
                 nine);
        period.show(CalendarRange::around(CalendarRange::Kind::Week, kDay, Qt::Monday),
                    {{kDay, {{u"Mail"_s, kHour}}, {}}}, PeriodPicture::By::Programs, kDay);
        QCoreApplication::processEvents();
    }

    ~PictureAccessibilityTest() override {
        day.setParent(nullptr);
        period.setParent(nullptr);
    }

    FakePlatform fakes;
    PictureColors colors{fakes.defaults};
    QWidget window;
    DayPicture day{colors};
    PeriodPicture period{colors};
};

} // namespace

TEST_F(PictureAccessibilityTest, aPicture_isAListOfItsItems) {
    QAccessibleInterface* list = QAccessible::queryAccessibleInterface(&day);
    ASSERT_NE(list, nullptr);
    EXPECT_EQ(list->role(), QAccessible::List);
    EXPECT_EQ(list->text(QAccessible::Name), u"The day"_s);
    ASSERT_EQ(list->childCount(), 2);
    const QAccessibleInterface* item = list->child(0);
    EXPECT_EQ(item->role(), QAccessible::ListItem);
    EXPECT_EQ(withPlainSpaces(item->text(QAccessible::Name)),
              u"9:00 AM to 10:00 AM, Mail, Project Meier, 1 hour"_s);
    EXPECT_EQ(item->text(QAccessible::Description), u"Inbox"_s);
    EXPECT_EQ(item->parent(), list);
    EXPECT_EQ(list->indexOfChild(item), 0);
    EXPECT_EQ(list->child(0), item) << "the same each time";
    EXPECT_EQ(list->child(2), nullptr);
}

TEST_F(PictureAccessibilityTest, ofAPeriod_barsAndPartsAreItems) {
    QAccessibleInterface* list = QAccessible::queryAccessibleInterface(&period);
    QStringList names;
    for (int i = 0; i < list->childCount(); ++i)
        names << list->child(i)->text(QAccessible::Name);
    ASSERT_EQ(names.size(), 8);
    EXPECT_EQ(names[2], u"Wednesday, November 18, 2026: 0 seconds"_s);
    EXPECT_EQ(names[3], u"Thursday, November 19, 2026: 1 hour"_s);
    EXPECT_EQ(names[4], u"Mail, 1 hour, 100%, Thursday, November 19, 2026"_s);
}

TEST_F(PictureAccessibilityTest, anItem_isWhereItIsDrawn) {
    QAccessibleInterface* list = QAccessible::queryAccessibleInterface(&day);
    const QRect rect = list->child(1)->rect();
    EXPECT_EQ(rect.topLeft(), day.mapToGlobal(day.itemRect(1).topLeft()));
    EXPECT_EQ(list->childAt(rect.center().x(), rect.center().y()), list->child(1));
}

TEST_F(PictureAccessibilityTest, anItem_canBePressed) {
    QSignalSpy chosen(&day, &DayPicture::programChosen);
    QAccessibleInterface* item = QAccessible::queryAccessibleInterface(&day)->child(1);
    item->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    ASSERT_EQ(chosen.count(), 1);
    EXPECT_EQ(chosen[0][0].toString(), u"Writer"_s);
    item->actionInterface()->doAction(QAccessibleActionInterface::setFocusAction());
    EXPECT_EQ(day.currentItem(), 1);
    EXPECT_TRUE(item->state().selected);
}

TEST_F(PictureAccessibilityTest, theCursor_isTheItemWithTheFocus) {
    day.setFocus();
    QAccessibleInterface* list = QAccessible::queryAccessibleInterface(&day);
    EXPECT_EQ(list->focusChild(), nullptr);
    QTest::keyClick(&day, Qt::Key_Right);
    EXPECT_EQ(list->focusChild(), list->child(0));
    EXPECT_TRUE(list->child(0)->state().selected);
    QTest::keyClick(&day, Qt::Key_Right);
    EXPECT_EQ(list->focusChild(), list->child(1));
    EXPECT_FALSE(list->child(0)->state().selected);
}

TEST_F(PictureAccessibilityTest, anItemThatIsGone_isNoMore) {
    QAccessibleInterface* item = QAccessible::queryAccessibleInterface(&day)->child(1);
    EXPECT_TRUE(item->isValid());
    day.show(0, 24 * kHour, {}, 0);
    EXPECT_FALSE(item->isValid());
    EXPECT_EQ(item->text(QAccessible::Name), QString());
    EXPECT_TRUE(item->state().invalid);
    item->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
}

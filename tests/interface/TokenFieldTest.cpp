// SPDX-License-Identifier: MIT
#include "interface/preferences/TokenField.h"
#include "tests/fakes/Announcements.h"

#include <QLineEdit>
#include <QTest>
#include <QToolButton>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

struct TokenFieldTest : testing::Test {
    TokenFieldTest() {
        field.resize(300, 80);
        field.show();
        field.activateWindow();
        field.setFocus();
        QCoreApplication::processEvents();
    }

    void type(const char* text) { QTest::keyClicks(&field.editor(), QString::fromUtf8(text)); }

    QList<QToolButton*> tokens() {
        QList<QToolButton*> shown;
        for (auto* token : field.findChildren<QToolButton*>())
            if (!token->isHidden())
                shown << token;
        return shown;
    }

    void press(Qt::Key key) { QTest::keyClick(field.window()->focusWidget(), key); }

    TokenField field;
};

} // namespace

TEST_F(TokenFieldTest, aComma_completesAToken) {
    type("work, home,gar");
    EXPECT_EQ(field.tokens(), (QStringList{u"work"_s, u"home"_s}));
    EXPECT_EQ(field.editor().text(), u"gar"_s);
    EXPECT_EQ(str(field.text()), "work,home,gar") << "what is being typed counts";
}

TEST_F(TokenFieldTest, return_completesTheLastOne) {
    type("work");
    press(Qt::Key_Return);
    EXPECT_EQ(field.tokens(), QStringList{u"work"_s});
    EXPECT_TRUE(field.editor().text().isEmpty());
}

TEST_F(TokenFieldTest, untouchedText_comesBackToTheLetter) {
    for (const QString& text : {u" a ,, b,"_s, u""_s, u"x"_s, u","_s}) {
        field.setText(text);
        EXPECT_EQ(str(field.text()), str(text));
    }
    field.setText(u" a ,, b,"_s);
    type("c");
    EXPECT_EQ(str(field.text()), "a,b,c");
}

TEST_F(TokenFieldTest, backspaceAtTheStart_reachesTheLastTokenAndThenTakesIt) {
    field.setText(u"a,b"_s);
    press(Qt::Key_Backspace);
    EXPECT_EQ(str(field.text()), "a,b");
    EXPECT_EQ(field.window()->focusWidget(), tokens().last());
    press(Qt::Key_Backspace);
    EXPECT_EQ(str(field.text()), "a");
    EXPECT_EQ(field.window()->focusWidget(), &field.editor());
}

TEST_F(TokenFieldTest, arrowKeys_walkThroughTheTokens) {
    field.setText(u"a,b"_s);
    press(Qt::Key_Left);
    press(Qt::Key_Left);
    EXPECT_EQ(field.window()->focusWidget(), tokens().first());
    press(Qt::Key_Left);
    EXPECT_EQ(field.window()->focusWidget(), tokens().first());
    press(Qt::Key_Delete);
    EXPECT_EQ(str(field.text()), "b");
    EXPECT_EQ(field.window()->focusWidget(), tokens().first());
    press(Qt::Key_Right);
    EXPECT_EQ(field.window()->focusWidget(), &field.editor());
}

TEST_F(TokenFieldTest, tokens_haveNamesForThoseWhoHearThem) {
    field.setText(u"work"_s);
    EXPECT_EQ(tokens().first()->accessibleName(), u"work"_s);
    EXPECT_FALSE(tokens().first()->accessibleDescription().isEmpty());
}

TEST_F(TokenFieldTest, manyTokens_wrapAndStayInside) {
    QStringList words;
    for (int i = 0; i < 40; ++i)
        words << u"category %1"_s.arg(i);
    words << QString(400, u'w');
    field.setText(words.join(u','));
    EXPECT_EQ(field.tokens().size(), 41);
    field.resize(300, field.minimumHeight());
    for (const QToolButton* token : tokens())
        EXPECT_TRUE(field.rect().contains(token->geometry())) << str(token->text());
    EXPECT_TRUE(field.rect().contains(field.editor().geometry()));
}

TEST_F(TokenFieldTest, leavingTheField_completesWhatWasTyped) {
    type("work");
    QFocusEvent out(QEvent::FocusOut);
    QCoreApplication::sendEvent(&field.editor(), &out);
    EXPECT_EQ(field.tokens(), QStringList{u"work"_s});
}

#include "Form.h"

#include <QInputMethodEvent>

namespace Tessellon {

namespace {

class InputMethod : public Form {
protected:
    void SetUp() override
    {
        Form::SetUp();
        Fill();
        Hear();
    }

    static void Compose(const QString& text)
    {
        QInputMethodEvent event(text, {});
        QCoreApplication::sendEvent(QApplication::focusWidget(), &event);
    }

    static void Commit(const QString& text)
    {
        QInputMethodEvent event;
        event.setCommitString(text);
        QCoreApplication::sendEvent(QApplication::focusWidget(), &event);
    }
};

} // namespace

TEST_F(InputMethod, CompositionInProgress_KeepsEnterAndArrowsToItself)
{
    Compose(QStringLiteral("ni"));
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Left, Qt::Key_Right, Qt::Key_Up, Qt::Key_Down, Qt::Key_Escape})
        Key(key);
    EXPECT_EQ(Sheet->Row(), 1);
    EXPECT_EQ(Sheet->Col(), 1);
    EXPECT_FALSE(Heard.contains(QStringLiteral("KeyDown")));
    EXPECT_TRUE(Box().IsComposing());
}

TEST_F(InputMethod, CommittedText_IsTyped_WithAKeyPressForEachCharacter)
{
    Compose(QStringLiteral("ni"));
    Commit(QStringLiteral("\u65E5\u672C"));
    EXPECT_EQ(Sheet->TextMatrix(1, 1), QStringLiteral("\u65E5\u672C"));
    EXPECT_EQ(Heard, QStringList({"KeyPress", "EditorChange", "KeyPress", "EditorChange"}));
}

TEST_F(InputMethod, FirstCharacterBehindAnAdvance_IsKept)
{
    Key(Qt::Key_Return);
    Compose(QStringLiteral("n"));
    Compose(QStringLiteral("ni"));
    Commit(QStringLiteral("\u65E5"));
    Type(QStringLiteral("x"));
    EXPECT_EQ(Sheet->TextMatrix(1, 2), QStringLiteral("\u65E5x"));
}

TEST_F(InputMethod, CommittedText_IsHeldToTheLimit)
{
    Commit(QStringLiteral("1234567"));
    EXPECT_EQ(Sheet->TextMatrix(1, 1), QStringLiteral("12345"));
}

TEST_F(InputMethod, HostThatDropsACharacter_DropsThatOfTheInputMethodToo)
{
    QObject::connect(Sheet, &SheetWidget::KeyPress, [](short& KeyAscii) { KeyAscii = KeyAscii == 'b' ? 0 : KeyAscii; });
    Commit(QStringLiteral("abc"));
    EXPECT_EQ(Sheet->TextMatrix(1, 1), QStringLiteral("ac"));
}

TEST_F(InputMethod, PressOnAnotherCell_TypesWhatWasComposed)
{
    Compose(QStringLiteral("abc"));
    Click({2, 2});
    EXPECT_EQ(Sheet->TextMatrix(1, 1), QStringLiteral("abc"));
    EXPECT_EQ(Sheet->TextMatrix(2, 2), QString());
}

TEST_F(InputMethod, PressOnTheHostsWidget_TypesWhatWasComposed)
{
    Compose(QStringLiteral("abc"));
    ClickThroughWindow(*Before);
    EXPECT_EQ(Sheet->TextMatrix(1, 1), QStringLiteral("abc"));
    EXPECT_EQ(QApplication::focusWidget(), Before);
}

TEST_F(InputMethod, EnterBehindTheCommit_AdvancesOnce)
{
    Compose(QStringLiteral("ab"));
    Commit(QStringLiteral("ab"));
    Key(Qt::Key_Return);
    EXPECT_EQ(Sheet->Col(), 2);
    EXPECT_EQ(Sheet->TextMatrix(1, 1), QStringLiteral("ab"));
}

} // namespace Tessellon

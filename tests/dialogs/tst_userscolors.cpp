#include "dialogs/userscolors.h"
#include "testcase.h"

#include <QColorDialog>

using namespace vardeno::testcharttools;

namespace {

const QColor filler(43, 43, 46);

QColor usersColor(int i)
{
    return QColor(10 * i, 200, 3);
}

} // namespace

/// The colours of the user's other programs are theirs.
class TestUsersColors : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        TestCase::init();
        for (int i = 0; i < QColorDialog::customCount(); ++i)
            QColorDialog::setCustomColor(i, usersColor(i));
    }

    void allAreReplacedAndComeBack()
    {
        UsersColors::replaceBy(filler);
        for (int i = 0; i < QColorDialog::customCount(); ++i)
            QCOMPARE(QColorDialog::customColor(i), filler);
        UsersColors::giveBack();
        for (int i = 0; i < QColorDialog::customCount(); ++i)
            QCOMPARE(QColorDialog::customColor(i), usersColor(i));
    }

    void againForgetsNone()
    {
        UsersColors::replaceBy(filler);
        UsersColors::replaceBy(filler);
        UsersColors::giveBack();
        for (int i = 0; i < QColorDialog::customCount(); ++i)
            QCOMPARE(QColorDialog::customColor(i), usersColor(i));
    }

    void aColourThatWasAddedStays_data()
    {
        QTest::addColumn<bool>("replacedAgain");
        QTest::newRow("in the last picker") << false;
        QTest::newRow("in a picker before it") << true;
    }

    void aColourThatWasAddedStays()
    {
        QFETCH(bool, replacedAgain);
        UsersColors::replaceBy(filler);
        QColorDialog::setCustomColor(3, Qt::red);
        if (replacedAgain)
            UsersColors::replaceBy(filler);
        UsersColors::giveBack();
        QCOMPARE(QColorDialog::customColor(3), QColor(Qt::red));
        QCOMPARE(QColorDialog::customColor(4), usersColor(4));
    }

    void givingBackTwiceChangesNothing()
    {
        UsersColors::replaceBy(filler);
        UsersColors::giveBack();
        QColorDialog::setCustomColor(0, filler); // the user's own by now
        UsersColors::giveBack();
        QCOMPARE(QColorDialog::customColor(0), filler);
    }
};

VD_TEST_MAIN(TestUsersColors)
#include "tst_userscolors.moc"

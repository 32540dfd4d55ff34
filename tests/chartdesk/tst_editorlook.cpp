#include "editorlook.h"
#include "settles.h"
#include "testcase.h"
#include "wheel.h"

#include <basicsettingbox.h>
#include <customdialog.h>
#include <inlinesettingbox.h>
#include <spineditbox.h>
#include <vtestcharttools.h>

#include <QColorDialog>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollArea>
#include <QScrollBar>

using namespace vardeno::testcharttools;

/// What the desk arranges in the editor.
class TestEditorLook : public TestCase
{
    Q_OBJECT

private:
    static QList<QPushButton*> visibleButtons(const VTestChartTools& editor)
    {
        QList<QPushButton*> found;
        const auto* bar = editor.findChild<QWidget*>("saveWidget");
        for (QPushButton* button : bar->findChildren<QPushButton*>()) {
            if (button->isVisible())
                found.append(button);
        }
        std::sort(found.begin(), found.end(),
                  [](const QPushButton* a, const QPushButton* b) { return a->x() < b->x(); });
        return found;
    }

    static QColor backgroundOf(QPushButton* button)
    {
        return button->grab().toImage().pixelColor(button->width() / 2, 4);
    }

private Q_SLOTS:
    void emptyColorsGoWithTheTheme()
    {
        QWidget window;
        QWidget page(&window); // with both, the editor has its colour dialog
        VTestChartTools editor(&page);
        const QColor filler = QColorDialog::customColor(0);
        const QColor light(226, 227, 232);
        QVERIFY(filler != light);
        QColorDialog::setCustomColor(3, Qt::red);
        {
            const EmptySlots empty(light);
            QCOMPARE(QColorDialog::customColor(0), light);
            QCOMPARE(QColorDialog::customColor(3), QColor(Qt::red));
            QCOMPARE(QColorDialog::customColor(15), light);
        }
        QCOMPARE(QColorDialog::customColor(0), filler);
        QCOMPARE(QColorDialog::customColor(3), QColor(Qt::red));
    }

    void confirmStaysInItsPlaceAndIsTheOnlyBlueButton()
    {
        VTestChartTools editor;
        new EditorLook(&editor);
        editor.show();
        editor.setShowForAdd(true);
        QVERIFY(settles(editor)); // locked, its buttons have other colours
        const auto adding = visibleButtons(editor);
        QCOMPARE(adding.size(), 2);
        const QRect confirm = adding.last()->geometry();
        const QColor blue = backgroundOf(adding.last());

        editor.setShowForAdd(false);
        QTRY_COMPARE(visibleButtons(editor).size(), 3);
        QTRY_COMPARE(visibleButtons(editor).last()->geometry(), confirm);
        QVERIFY(settles(editor));
        const auto editing = visibleButtons(editor);
        QCOMPARE(editing.at(2)->text(), QString("Confirm"));
        QCOMPARE(editing.at(1)->text(), QString("Apply"));
        QCOMPARE(backgroundOf(editing.at(2)), blue);
        QVERIFY(backgroundOf(editing.at(1)) != blue);
        QCOMPARE(backgroundOf(editing.at(1)), backgroundOf(editing.at(0)));
    }

    void theWheelScrollsUnlessTheFieldHasTheFocus_data()
    {
        QTest::addColumn<bool>("hasFocus");
        QTest::newRow("no focus") << false;
        QTest::newRow("focus") << true;
    }

    void theWheelScrollsUnlessTheFieldHasTheFocus()
    {
        QFETCH(bool, hasFocus);
        VTestChartTools editor;
        new EditorLook(&editor);
        editor.show();
        QVERIFY(settles(editor)); // locked, it would not take the wheel
        auto* panel = editor.findChild<InLineSettingBox*>();
        SpinEditBox* field = nullptr;
        for (SpinEditBox* candidate : panel->findChildren<SpinEditBox*>()) {
            if (candidate->value() == 540)
                field = candidate;
        }
        QVERIFY(field);
        auto* bar = editor.findChild<QScrollArea*>("ScrollArea")->verticalScrollBar();
        QVERIFY(bar->maximum() > 0);
        if (hasFocus) {
            QApplication::setActiveWindow(&editor);
            field->setFocus();
            QTRY_VERIFY(field->hasFocus());
        } else {
            editor.setFocus();
        }
        bar->setValue(0); // the focus brings its field into view
        editor.findChild<QScrollArea*>("ScrollArea")->ensureWidgetVisible(field);
        const int before = bar->value();
        turnWheelOver(field, -120);
        QCOMPARE(field->value() != 540, hasFocus);
        QCOMPARE(bar->value() > before, !hasFocus);
        QCOMPARE(field->hasFocus(), hasFocus);
    }

    void theQuestionStaysInTheWindowAndOffItsButton()
    {
        log().allowWarning(QStringLiteral("^This plugin does not support grabbing the (keyboard|mouse)"));
        VTestChartTools editor;
        new EditorLook(&editor);
        editor.move(0, 0);
        editor.show();
        auto* panel = editor.findChild<BasicSettingBox*>();
        for (QRadioButton* radio : panel->findChildren<QRadioButton*>())
            if (radio->text() == "Color bar")
                radio->click();
        auto* button = panel->findChild<QPushButton*>("CancleButton");
        QTRY_VERIFY(button->isVisible() && button->isEnabled());
        QVERIFY(settles(editor)); // the button is where it stays
        CustomDialog* question = nullptr;
        QTRY_VERIFY([&] {
            QTest::mouseClick(button, Qt::LeftButton);
            for (QWidget* widget : QApplication::topLevelWidgets())
                if (auto* found = qobject_cast<CustomDialog*>(widget))
                    question = found;
            return question && question->isVisible();
        }());
        const QRect place(button->mapToGlobal(QPoint()), button->size());
        const QRect window(editor.mapToGlobal(QPoint()), editor.size());
        QVERIFY(!question->geometry().intersects(place));
        QVERIFY(window.contains(question->geometry()));
        question->close();
    }
};

VD_TEST_MAIN(TestEditorLook)
#include "tst_editorlook.moc"

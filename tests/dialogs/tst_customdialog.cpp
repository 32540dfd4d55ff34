#include "customdialog.h"
#include "language.h"
#include "testcase.h"

#include <QLayout>
#include <QPointer>
#include <QPushButton>
#include <QWindow>

#include <memory>

using namespace vardeno::testcharttools;

namespace {

/// A dialog as the panel makes it, and what is heard of it.
class Dialog : public QObject
{
public:
    Dialog()
    {
        connect(dialog, &CustomDialog::configDelete, this, [this] {
            heard.append(dialog->isVisible() ? QStringLiteral("configDelete")
                                             : QStringLiteral("configDelete, closed"));
        });
        connect(dialog, &CustomDialog::onConfirm, this,
                [this] { heard.append(QStringLiteral("onConfirm")); });
        connect(dialog, &QDialog::accepted, this, [this] { heard.append(QStringLiteral("accepted")); });
        connect(dialog, &QDialog::rejected, this, [this] { heard.append(QStringLiteral("rejected")); });
        connect(dialog, &QObject::destroyed, this, [this] { heard.append(QStringLiteral("destroyed")); });
    }
    ~Dialog() override { delete dialog; }

    bool show()
    {
        dialog->move(300, 200);
        dialog->show();
        return QTest::qWaitForWindowExposed(dialog);
    }

    QPushButton* button(const char* name) const
    {
        return dialog->findChild<QPushButton*>(QLatin1String(name));
    }
    QLabel* message() const { return dialog->findChild<QLabel*>(QStringLiteral("messageLabel")); }

    void click(const char* name) const
    {
        QWidget* const target = button(name);
        QTest::mouseClick(dialog->windowHandle(), Qt::LeftButton, {},
                          target->mapTo(dialog, target->rect().center()));
    }

    QPointer<CustomDialog> dialog = new CustomDialog;
    QStringList heard;
};

QString longQuestion()
{
    return QStringLiteral("Soll diese Farbe wirklich aus dem Farbbalken entfernt werden?");
}

} // namespace

class TestCustomDialog : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        TestCase::init();
        // The offscreen platform's own, for every pop-up.
        log().allowWarning(
            QStringLiteral("^This plugin does not support (raise\\(\\)|grabbing the keyboard)"));
    }

    void cleanup()
    {
        TranslateManager1::instance().switchLanguage(QString());
        TestCase::cleanup();
    }

    void isASmallPopUp()
    {
        Dialog d;
        QCOMPARE(d.dialog->objectName(), QStringLiteral("customDialog"));
        QCOMPARE(d.dialog->windowType(), Qt::Popup);
        QVERIFY(d.dialog->windowFlags().testFlag(Qt::FramelessWindowHint));
        QVERIFY(d.dialog->windowFlags().testFlag(Qt::NoDropShadowWindowHint));
        QVERIFY(d.dialog->testAttribute(Qt::WA_DeleteOnClose));
        QVERIFY(!d.dialog->isModal());
        QCOMPARE(d.dialog->minimumSize(), QSize(198, 100));
        QCOMPARE(d.dialog->maximumSize(), QSize(198, 100));
        QVERIFY(d.show());
        QCOMPARE(d.dialog->size(), QSize(198, 100));
        QCOMPARE(d.dialog->pos(), QPoint(300, 200));
    }

    void texts_data()
    {
        QTest::addColumn<Texts>("texts");
        QTest::addColumn<QString>("message");
        QTest::addColumn<QString>("confirm");
        QTest::addColumn<QString>("cancel");
        QTest::newRow("the source texts") << Texts{} << "DeleteColorBar"
                                          << "OK"
                                          << "Cannel";
        QTest::newRow("translated") << Texts{{"DeleteColorBar", "Weg damit?"},
                                             {"OK", "Ja"},
                                             {"Cannel", "Nein"}}
                                    << "Weg damit?"
                                    << "Ja"
                                    << "Nein";
    }

    void texts()
    {
        QFETCH(Texts, texts);
        QFETCH(QString, message);
        QFETCH(QString, confirm);
        QFETCH(QString, cancel);
        QVERIFY(speak(texts));
        Dialog d;
        QCOMPARE(d.message()->text(), message);
        QCOMPARE(d.message()->toolTip(), QString());
        QCOMPARE(d.button("confirmBtn")->text(), confirm);
        QCOMPARE(d.button("cancelBtn")->text(), cancel);
    }

    void buttonsAreReadWholeWhateverTheHostsFont_data()
    {
        QTest::addColumn<int>("points");
        QTest::newRow("small") << 7;
        QTest::newRow("the toolkit's default") << 12;
        QTest::newRow("large") << 20;
    }

    void buttonsAreReadWholeWhateverTheHostsFont()
    {
        QFETCH(int, points);
        const QFont before = QApplication::font();
        QApplication::setFont(QFont(before.family(), points));
        Dialog d;
        QApplication::setFont(before);
        QVERIFY(d.show());
        for (const char* name : {"confirmBtn", "cancelBtn"}) {
            const QPushButton* const button = d.button(name);
            QCOMPARE(button->text(), QLatin1String(name) == QLatin1String("confirmBtn") ? "OK" : "Cannel");
            QVERIFY(button->fontMetrics().horizontalAdvance(button->text()) <= button->width());
            QVERIFY(button->fontMetrics().height() <= button->height());
        }
    }

    void arrangement()
    {
        Dialog d;
        QVERIFY(d.show());
        const QPushButton* const confirm = d.button("confirmBtn");
        const QPushButton* const cancel = d.button("cancelBtn");
        QCOMPARE(confirm->size(), QSize(50, 17));
        QCOMPARE(cancel->size(), QSize(50, 17));

        QList<QLabel*> unnamed;
        for (auto* label : d.dialog->findChildren<QLabel*>()) {
            if (label->objectName().isEmpty())
                unnamed.append(label);
        }
        QCOMPARE(unnamed.size(), 2);
        const QLabel* const icon = unnamed.first();
        const QLabel* const spacer = unnamed.last();
        QCOMPARE(icon->size(), QSize(16, 16));
        const QImage question(QStringLiteral(":/resources/images/icon_ask.png"));
        QVERIFY(!question.isNull());
        VD_COMPARE_IMAGES(layerImage(*icon), question);
        QCOMPARE(spacer->height(), 16);
        QVERIFY(spacer->text().isEmpty());

        const QRect contents = d.dialog->layout()->contentsRect();
        QVERIFY(icon->geometry().right() < d.message()->x());
        QVERIFY(std::abs(icon->geometry().center().y() - d.message()->geometry().center().y()) <= 1);
        QVERIFY(spacer->y() > d.message()->geometry().bottom());
        QVERIFY(confirm->y() > spacer->geometry().bottom());
        QCOMPARE(confirm->y(), cancel->y());
        QVERIFY(confirm->geometry().right() < cancel->x());
        QCOMPARE(cancel->geometry().right(), contents.right());
        QVERIFY(contents.contains(cancel->geometry()));
        QCOMPARE(d.message()->geometry().right(), contents.right());
    }

    void aLongMessageIsElided_data()
    {
        QTest::addColumn<bool>("shownBefore");
        QTest::newRow("before it is shown") << false;
        QTest::newRow("while it is shown") << true;
    }

    void aLongMessageIsElided()
    {
        QFETCH(bool, shownBefore);
        Dialog d;
        if (shownBefore)
            QVERIFY(d.show());
        QVERIFY(speak({{QStringLiteral("DeleteColorBar"), longQuestion()}}));
        QCOMPARE(d.message()->text(), QStringLiteral("DeleteColorBar"));
        d.dialog->retranslate();
        if (!shownBefore)
            QVERIFY(d.show());

        const QString shown = d.message()->text();
        const QChar ellipsis(0x2026);
        QVERIFY2(shown.endsWith(ellipsis), qPrintable(shown));
        QVERIFY(longQuestion().startsWith(shown.chopped(1)));
        QCOMPARE(d.message()->toolTip(), longQuestion());
        const int room = d.message()->width();
        QCOMPARE(shown, d.message()->fontMetrics().elidedText(longQuestion(), Qt::ElideRight, room));

        QVERIFY(speak({{QStringLiteral("DeleteColorBar"), QStringLiteral("Weg?")}}));
        d.dialog->retranslate();
        QCOMPARE(d.message()->text(), QStringLiteral("Weg?"));
        QCOMPARE(d.message()->toolTip(), QString());
    }

    void takesAStyleSheet()
    {
        Dialog d;
        d.dialog->setDialogStyleSheet(QStringLiteral("QLabel { color: #123456; }"));
        QCOMPARE(d.dialog->styleSheet(), QStringLiteral("QLabel { color: #123456; }"));
        QVERIFY(d.show());
        QCOMPARE(d.message()->palette().color(QPalette::WindowText), QColor(0x12, 0x34, 0x56));
    }

    void confirming()
    {
        Dialog d;
        QVERIFY(d.show());
        d.click("confirmBtn");
        QTRY_VERIFY(!d.dialog);
        const QStringList order{QStringLiteral("configDelete"), QStringLiteral("accepted"),
                                QStringLiteral("destroyed")};
        QCOMPARE(d.heard, order);
    }

    void dismissing_data()
    {
        QTest::addColumn<int>("way");
        QTest::newRow("cancel button") << int(CancelButton);
        QTest::newRow("Escape") << int(Escape);
        QTest::newRow("click elsewhere") << int(ClickElsewhere);
        QTest::newRow("closed by its owner") << int(Close);
    }

    void dismissing()
    {
        QFETCH(int, way);
        QPushButton elsewhere;
        elsewhere.setGeometry(20, 20, 100, 40);
        elsewhere.show();
        QVERIFY(QTest::qWaitForWindowExposed(&elsewhere));
        Dialog d;
        QVERIFY(d.show());
        switch (way) {
        case CancelButton:
            d.click("cancelBtn");
            break;
        case Escape:
            QTest::keyPress(d.dialog->windowHandle(), Qt::Key_Escape);
            break;
        case ClickElsewhere:
            QTest::mouseClick(elsewhere.windowHandle(), Qt::LeftButton, {}, QPoint(50, 20));
            break;
        default:
            d.dialog->close();
        }
        QTRY_VERIFY(!d.dialog);
        const QStringList order{QStringLiteral("rejected"), QStringLiteral("destroyed")};
        QCOMPARE(d.heard, order);
    }

    void aClickInsideLeavesItOpen()
    {
        Dialog d;
        QVERIFY(d.show());
        QTest::mouseClick(d.dialog->windowHandle(), Qt::LeftButton, {}, QPoint(4, 50));
        QTest::qWait(20);
        QVERIFY(d.dialog);
        QVERIFY(d.dialog->isVisible());
        QCOMPARE(d.heard, QStringList());
    }

private:
    enum Way
    {
        CancelButton,
        Escape,
        ClickElsewhere,
        Close
    };
};

VD_TEST_MAIN(TestCustomDialog)
#include "tst_customdialog.moc"

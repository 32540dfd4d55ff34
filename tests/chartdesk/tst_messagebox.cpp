#include "messagebox.h"
#include "testcase.h"

Q_DECLARE_METATYPE(MessageKind)

/// The look of the desk's messages.
class TestMessageBox : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void icon_data()
    {
        QTest::addColumn<MessageKind>("kind");
        QTest::addColumn<QColor>("color");
        const QColor highlight = QApplication::palette().color(QPalette::Highlight);
        QTest::newRow("note") << MessageKind::Note << highlight;
        QTest::newRow("question") << MessageKind::Question << highlight;
        QTest::newRow("warning") << MessageKind::Warning << QColor("#c9822b");
    }

    /// A disc with a margin of two pixels in a square of 40.
    void icon()
    {
        QFETCH(MessageKind, kind);
        QFETCH(QColor, color);
        QWidget parent;
        const QImage icon = messageBox(&parent, kind, {}, {})->iconPixmap().toImage();
        QCOMPARE(icon.size(), QSize(40, 40));
        QCOMPARE(icon.pixelColor(20, 4).rgba(), color.rgba());
        QCOMPARE(icon.pixelColor(20, 36).rgba(), color.rgba());
        QCOMPARE(icon.pixelColor(20, 1).alpha(), 0);
        QCOMPARE(icon.pixelColor(20, 38).alpha(), 0);
        QCOMPARE(icon.pixelColor(4, 4).alpha(), 0);
    }
};

VD_TEST_MAIN(TestMessageBox)
#include "tst_messagebox.moc"

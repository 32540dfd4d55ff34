#include "support/writefault.h"
#include "testcase.h"

#include <QFile>
#include <QTemporaryDir>

#include <cerrno>

using namespace vardeno::testcharttools;

Q_DECLARE_METATYPE(WriteFault::Kind)

class TestWriteFault : public TestCase
{
    Q_OBJECT

private:
    QTemporaryDir m_folder;

private Q_SLOTS:
    void initTestCase()
    {
        QFile file(m_folder.filePath("file"));
        QVERIFY(file.open(QIODevice::WriteOnly));
        QVERIFY(QDir(m_folder.path()).mkdir("folder"));
    }

    void kind_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<int>("errorNumber");
        QTest::addColumn<WriteFault::Kind>("kind");
        QTest::newRow("no rights") << "a.png" << EACCES << WriteFault::NoPermission;
        QTest::newRow("another's") << "a.png" << EPERM << WriteFault::NoPermission;
        QTest::newRow("a disk to read") << "a.png" << EROFS << WriteFault::NoPermission;
        QTest::newRow("a full disk") << "a.png" << ENOSPC << WriteFault::NoSpace;
        QTest::newRow("a full quota") << "a.png" << EDQUOT << WriteFault::NoSpace;
        QTest::newRow("larger than may be") << "a.png" << EFBIG << WriteFault::NoSpace;
        QTest::newRow("a full disk under a missing folder") << "none/a.png" << ENOSPC << WriteFault::NoSpace;
        QTest::newRow("a folder that has come back") << "a.png" << ENOENT << WriteFault::NoFolder;
        QTest::newRow("a missing folder") << "none/deep/a.png" << ENOENT << WriteFault::NoFolder;
        QTest::newRow("a missing folder, unsaid") << "none/a.png" << 0 << WriteFault::NoFolder;
        QTest::newRow("a file for a folder") << "file/a.png" << ENOTDIR << WriteFault::InTheWay;
        QTest::newRow("a file for a folder above") << "file/deep/a.png" << 0 << WriteFault::InTheWay;
        QTest::newRow("a folder for a file") << "folder" << EISDIR << WriteFault::InTheWay;
        QTest::newRow("a folder for a file, unsaid") << "folder" << 0 << WriteFault::InTheWay;
        QTest::newRow("said to be a folder") << "a.png" << EISDIR << WriteFault::InTheWay;
        QTest::newRow("a broken disk") << "a.png" << EIO << WriteFault::Other;
    }

    void kind()
    {
        QFETCH(QString, path);
        QFETCH(int, errorNumber);
        const QFile file(m_folder.filePath(path));
        QTEST(writeFaultOf(file.fileName(), file, errorNumber).kind, "kind");
    }

    void text()
    {
        QCOMPARE(writeFaultText({}), QString());
        QCOMPARE(writeFaultText({WriteFault::NoFolder, "unused"}), QString("The folder is not there."));
        QCOMPARE(writeFaultText({WriteFault::Other, "said by the system"}), QString("said by the system"));
    }
};

VD_TEST_MAIN(TestWriteFault)
#include "tst_writefault.moc"

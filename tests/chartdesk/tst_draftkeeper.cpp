#include "chartfiles.h"
#include "draftkeeper.h"
#include "testcase.h"

#include <QTemporaryDir>

#include <csignal>
#include <memory>

#include <sys/wait.h>
#include <unistd.h>

using namespace chartfiles;

/// Drafts on the disk: whose they are, and when they are written.
class TestDraftKeeper : public TestCase
{
    Q_OBJECT

private:
    std::unique_ptr<QTemporaryDir> m_root;

    static Draft draft(int rows)
    {
        Draft made;
        made.folder = QStringLiteral("/charts");
        made.editedImage = QStringLiteral("/charts/20240101_120000/a.png");
        made.editedDigest = "0123";
        made.document = {{"wall", "west"}};
        made.record.publicData.boxRow = rows;
        made.record.logoData.picturePath = "/drafts/logo.png";
        return made;
    }

    /// The rows of the draft in the folder, -1 where there is none.
    static int rowsIn(const DraftFolder& folder)
    {
        bool isValid = false;
        const Draft read = folder.read(&isValid);
        return isValid ? read.record.publicData.boxRow : -1;
    }

private Q_SLOTS:
    void init()
    {
        TestCase::init();
        m_root = std::make_unique<QTemporaryDir>();
    }

    void aDraftIsReadAsItWasWritten()
    {
        const auto folder = DraftFolder::create(m_root->path());
        QVERIFY(folder->write(draft(3)));
        bool isValid = false;
        const Draft read = folder->read(&isValid);
        QVERIFY(isValid);
        QCOMPARE(read.folder, QString("/charts"));
        QCOMPARE(read.editedImage, QString("/charts/20240101_120000/a.png"));
        QCOMPARE(read.editedDigest, QByteArray("0123"));
        QCOMPARE(read.document, draft(3).document);
        QCOMPARE(read.record.publicData.boxRow, 3);
        QCOMPARE(read.record.logoData.picturePath, std::string("/drafts/logo.png"));
        QVERIFY(read.changed.secsTo(QDateTime::currentDateTime()) < 60);
    }

    void damagedDraftsAreNotUsed_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::newRow("empty") << QByteArray();
        QTest::newRow("cut") << QByteArray("{\"record\": {");
        QTest::newRow("without a record") << QByteArray("{\"folder\": \"/charts\"}");
        QTest::newRow("a record out of range")
            << QByteArray("{\"record\": {\"publicData\": {\"boxRow\": -1}}}");
    }

    void damagedDraftsAreNotUsed()
    {
        QFETCH(QByteArray, bytes);
        const auto folder = DraftFolder::create(m_root->path());
        QVERIFY(writeFile(folder->draftPath(), bytes));
        bool isValid = true;
        folder->read(&isValid);
        QVERIFY(!isValid);
    }

    void theDraftOfARunningEditIsNobodyElses()
    {
        const auto mine = DraftFolder::create(m_root->path());
        QVERIFY(mine->write(draft(3)));
        QCOMPARE(DraftFolder::takeAbandoned(m_root->path()).size(), size_t(0));
        const pid_t other = fork();
        if (other == 0)
            _exit(int(DraftFolder::takeAbandoned(m_root->path()).size()));
        int status = -1;
        QCOMPARE(waitpid(other, &status, 0), other);
        QCOMPARE(status, 0);
    }

    void theDraftOfAKilledProcessIsFound()
    {
        const pid_t desk = fork();
        if (desk == 0) {
            const auto folder = DraftFolder::create(m_root->path());
            folder->write(draft(7));
            kill(getpid(), SIGKILL);
        }
        QCOMPARE(waitpid(desk, nullptr, 0), desk);
        const auto first = DraftFolder::takeAbandoned(m_root->path());
        QCOMPARE(first.size(), size_t(1));
        QCOMPARE(rowsIn(*first.front()), 7);
        QCOMPARE(DraftFolder::takeAbandoned(m_root->path()).size(), size_t(0)); // it is the first one's now
    }

    void aFolderWithoutADraftIsSwept()
    {
        {
            const auto folder = DraftFolder::create(m_root->path());
            QVERIFY(writeFile(folder->picturesPath() + "/logo.png", "x"));
        }
        QCOMPARE(DraftFolder::takeAbandoned(m_root->path()).size(), size_t(0));
        QCOMPARE(tree(m_root->path()), QStringList());
    }

    void noFolderWhereNothingCanBeWritten()
    {
        QVERIFY(writeFile(m_root->filePath("file"), ""));
        QVERIFY(!DraftFolder::create(m_root->filePath("file")));
    }

    void writtenAtOnceAndThenOnceASecond()
    {
        int rows = 1;
        DraftKeeper keeper([&rows] { return draft(rows); });
        keeper.start(DraftFolder::create(m_root->path()));
        QCOMPARE(rowsIn(*keeper.folder()), -1);
        keeper.touch();
        QTRY_COMPARE_WITH_TIMEOUT(rowsIn(*keeper.folder()), 1, 500);
        QElapsedTimer sinceFirst;
        sinceFirst.start();
        for (rows = 2; rows < 50; ++rows) {
            keeper.touch();
            QTest::qWait(5);
            if (sinceFirst.elapsed() < 600)
                QCOMPARE(rowsIn(*keeper.folder()), 1);
        }
        QTRY_COMPARE_WITH_TIMEOUT(rowsIn(*keeper.folder()), 50, 2000);
        QVERIFY(sinceFirst.elapsed() > 900);
    }

    void aSavedEditHasNoDraft()
    {
        DraftKeeper keeper([] { return draft(1); });
        keeper.start(DraftFolder::create(m_root->path()));
        keeper.touch();
        QTRY_COMPARE(rowsIn(*keeper.folder()), 1);
        keeper.touch();
        keeper.forget();
        QTest::qWait(1200); // when it would have been written again
        QCOMPARE(rowsIn(*keeper.folder()), -1);
        keeper.touch();
        QTRY_COMPARE(rowsIn(*keeper.folder()), 1);
        keeper.end();
        QCOMPARE(tree(m_root->path()), QStringList());
        keeper.touch(); // no edit, no draft
        QTest::qWait(20);
        QCOMPARE(tree(m_root->path()), QStringList());
    }
};

VD_TEST_MAIN(TestDraftKeeper)
#include "tst_draftkeeper.moc"

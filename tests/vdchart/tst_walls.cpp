#include "exitcode.h"
#include "testcase.h"
#include "walls.h"

class TestWalls : public TestCase
{
    Q_OBJECT

private:
    /// One wall in a line: its name, and its settings.
    static QStringList shown(const std::vector<Wall>& walls)
    {
        QStringList lines;
        for (const Wall& wall : walls) {
            QString line = wall.name;
            for (const std::string& setting : wall.settings)
                line += QLatin1Char(' ') + QString::fromStdString(setting);
            lines.append(line);
        }
        return lines;
    }

private Q_SLOTS:
    void tables_data()
    {
        QTest::addColumn<QByteArray>("csv");
        QTest::addColumn<QStringList>("walls");
        const QStringList left = {QStringLiteral("left publicData.resolutionWidth=1920")};
        QTest::newRow("header only") << QByteArray("name,width\n") << QStringList();
        QTest::newRow("one wall") << QByteArray("name,width\nleft,1920\n") << left;
        QTest::newRow("no line end at the end") << QByteArray("name,width\nleft,1920") << left;
        QTest::newRow("line ends of other systems") << QByteArray("name,width\r\nleft,1920\r\n") << left;
        QTest::newRow("byte order mark") << QByteArray("\xef\xbb\xbfname,width\nleft,1920\n") << left;
        QTest::newRow("byte order marks inside")
            << QByteArray("name,width\n\xef\xbb\xbf\xef\xbb\xbfle\xef\xbb\xbf"
                          "ft,1920\n")
            << left;
        QTest::newRow("semicolons") << QByteArray("name;width;selfData.selfText\nleft;1920;a, b\n")
                                    << QStringList{
                                           "left publicData.resolutionWidth=1920 selfData.selfText=a, b"};
        QTest::newRow("tabulators") << QByteArray("name\twidth\nleft\t1920\n") << left;
        QTest::newRow("semicolons below an empty line")
            << QByteArray("\r\n\nname;width\nleft;1920\n") << left;
        QTest::newRow("commas and tabulators") << QByteArray("name\t,\twidth\nleft\t,\t1920\n") << left;
        QTest::newRow("lines that end in another way") << QByteArray("name\rle;ft\r") << QStringList{"le;ft"};
        QTest::newRow("a semicolon in a cell")
            << QByteArray("name,selfData.selfText\na,b; c\n") << QStringList{"a selfData.selfText=b; c"};
        QTest::newRow("blanks and quotes") << QByteArray("name , \"width\"\n \"left\",  1920 \n") << left;
        QTest::newRow("empty lines") << QByteArray("name,width\n\nleft,1920\n\n") << left;
        QTest::newRow("columns in another order") << QByteArray("width,name\n1920,left\n") << left;
        QTest::newRow("an empty cell") << QByteArray("name,width\nleft,\n") << QStringList{"left"};
        QTest::newRow("every short column")
            << QByteArray("name,width,height,rows,columns\na,16,32,4,8\n")
            << QStringList{"a publicData.resolutionWidth=16 publicData.resolutionHeight=32 "
                           "publicData.boxRow=4 publicData.boxCol=8"};
        QTest::newRow("a field, a comma and a quote in a cell")
            << QByteArray("name,selfData.selfText\na,\"up, \"\"left\"\"\"\n")
            << QStringList{"a selfData.selfText=up, \"left\""};
        QTest::newRow("other letters")
            << QByteArray("name\nBühne 屏\n") << QStringList{QString::fromUtf8("Bühne 屏")};
    }

    void tables()
    {
        QFETCH(QByteArray, csv);
        QFETCH(QStringList, walls);
        QCOMPARE(shown(readWalls(csv, QStringLiteral("walls.csv"))), walls);
    }

    void refused_data()
    {
        QTest::addColumn<QByteArray>("csv");
        QTest::addColumn<QString>("message");
        QTest::newRow("nothing") << QByteArray() << "walls.csv: there is nothing in it";
        QTest::newRow("no names") << QByteArray("width\n1\n")
                                  << "walls.csv: row 1: the first row has no column \"name\"";
        QTest::newRow("unknown column") << QByteArray("name,colour\n")
                                        << "walls.csv: row 1: the column \"colour\" is neither name, width, "
                                           "height, rows, columns nor a field of a record";
        QTest::newRow("a group")
            << QByteArray("name,publicData\n")
            << "walls.csv: row 1: the column \"publicData\" is neither name, width, height, rows, "
               "columns nor a field of a record";
        QTest::newRow("twice") << QByteArray("name,width,width\n")
                               << "walls.csv: row 1: there are several columns \"width\"";
        QTest::newRow("one field twice")
            << QByteArray("name,width,publicData.resolutionWidth\na,1,2\n")
            << "walls.csv: row 1: the columns \"width\" and \"publicData.resolutionWidth\" are of one field";
        QTest::newRow("a device") << QByteArray("name\nCON\n")
                                  << "walls.csv: row 2: the name \"CON\" is a device on some systems";
        QTest::newRow("too few cells")
            << QByteArray("name,width\na,1\nb\n") << "walls.csv: row 3: 1 cells for 2 columns";
        QTest::newRow("too many cells")
            << QByteArray("name\na,1\n") << "walls.csv: row 2: 2 cells for 1 columns";
        QTest::newRow("no name") << QByteArray("name,width\n,1\n") << "walls.csv: row 2: the name is missing";
        QTest::newRow("a path") << QByteArray("name\n../a\n")
                                << "walls.csv: row 2: the name \"../a\" has characters that no file name has";
        QTest::newRow("a hidden file")
            << QByteArray("name\n.a\n") << "walls.csv: row 2: the name \".a\" begins with a dot";
        QTest::newRow("a quote that does not end")
            << QByteArray("name\n\"a\n")
            << "walls.csv: row 2: a quotation mark has no end, or stands in a cell without "
               "quotation marks around it";
        QTest::newRow("a quote within")
            << QByteArray("name\na\"b\n")
            << "walls.csv: row 2: a quotation mark has no end, or stands in a cell without "
               "quotation marks around it";
    }

    /// Of which each would be a picture, and all of them gigabytes.
    void tooLong_data()
    {
        QTest::addColumn<QByteArray>("csv");
        QTest::addColumn<bool>("tooLong");
        QTest::newRow("many rows") << "name\n" + QByteArray("a\n").repeated(9999) << false;
        QTest::newRow("too many rows") << "name\n" + QByteArray("a\n").repeated(10000) << true;
        QTest::newRow("too many cells") << QByteArray("name" + QByteArray(",x").repeated(1000)) << true;
    }

    void tooLong()
    {
        QFETCH(QByteArray, csv);
        QFETCH(bool, tooLong);
        QString message;
        try {
            readWalls(csv, QStringLiteral("walls.csv"));
        } catch (const Failure& failure) {
            message = failure.message;
        }
        QCOMPARE(message, tooLong ? QStringLiteral("walls.csv: more than 10000 rows, or 1000 cells in one")
                                  : QString());
    }

    void notUtf8_data()
    {
        QTest::addColumn<QByteArray>("csv");
        QTest::addColumn<int>("line");
        QTest::newRow("the first line") << QByteArray("\xff\nname\n") << 1;
        QTest::newRow("the last, which has no end") << QByteArray("name\n\nb\xff") << 3;
        QTest::newRow("behind many others") << QByteArray("name\n").repeated(100000) + "\xff" << 100001;
        QTest::newRow("a zero byte") << QByteArray("name\na\0\n", 8) << 2;
    }

    void notUtf8()
    {
        QFETCH(QByteArray, csv);
        QFETCH(int, line);
        try {
            readWalls(csv, QStringLiteral("walls.csv"));
            QFAIL("it was read");
        } catch (const Failure& failure) {
            QCOMPARE(failure.message, QStringLiteral("walls.csv: line %1: not UTF-8 text").arg(line));
        }
    }

    void refused()
    {
        QFETCH(QByteArray, csv);
        QFETCH(QString, message);
        try {
            readWalls(csv, QStringLiteral("walls.csv"));
            QFAIL("it was read");
        } catch (const Failure& failure) {
            QCOMPARE(failure.message, message);
            QCOMPARE(failure.code, ExitCode::Unreadable);
        }
    }

    /// By which messages find them, whatever empty lines there are.
    void rows()
    {
        const std::vector<Wall> walls = readWalls("name\n\na\nb\n", QStringLiteral("walls.csv"));
        QCOMPARE(walls.at(0).row, 2);
        QCOMPARE(walls.at(1).row, 3);
    }

    /// A path may look like a place for the rest of the message.
    void percentSignsInThePath()
    {
        for (const char* csv : {"width\n1\n", "name\n\"a\n"}) {
            QString message;
            try {
                readWalls(csv, QStringLiteral("%2%3.csv"));
            } catch (const Failure& failure) {
                message = failure.message;
            }
            QVERIFY2(message.startsWith(QStringLiteral("%2%3.csv: row ")), qPrintable(message));
        }
    }
};

VD_TEST_MAIN(TestWalls)
#include "tst_walls.moc"

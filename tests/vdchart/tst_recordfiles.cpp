#include "chartfont.h"
#include "charttool.h"

#include <chartrecordfile.h>

#include <QCryptographicHash>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>

using namespace charttool;

namespace {

constexpr int recordCount = 40;
std::unique_ptr<VTestChartTools> sameEditor;

QDir recordFolder()
{
    return QDir(sourcePath("tests/golden"));
}

QStringList recordNames()
{
    return recordFolder().entryList({QStringLiteral("*.json")}, QDir::Files, QDir::Name);
}

QByteArray contents(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// Nothing is set in a font, whose pixels differ between systems.
bool isWithoutText(const TestChartToolsData& record)
{
    return !record.inLineData.showSerialNumber && !(record.logoData.showLogo && record.logoData.textLogo) &&
           !record.selfData.showSelfText && !record.selfData.showResolution;
}

/// Line by line from the top, four bytes a pixel: blue, green, red and 255.
QByteArray pixels(const QImage& chart)
{
    const QImage image = chart.convertToFormat(QImage::Format_RGB32);
    QByteArray bytes;
    bytes.reserve(image.width() * image.height() * 4);
    for (int y = 0; y < image.height(); ++y)
        bytes.append(reinterpret_cast<const char*>(image.constScanLine(y)), image.width() * 4);
    return bytes;
}

QByteArray hashOf(const QImage& chart)
{
    return QCryptographicHash::hash(pixels(chart), QCryptographicHash::Sha256).toHex();
}

/// As sha256sum writes them: the hash, two spaces, the record's file name.
QMap<QString, QByteArray> goldenHashes()
{
    QMap<QString, QByteArray> hashes;
    for (const QByteArray& line :
         contents(recordFolder().filePath(QStringLiteral("pixels.sha256"))).split('\n')) {
        if (!line.isEmpty())
            hashes.insert(QString::fromUtf8(line.mid(66)), line.left(64));
    }
    return hashes;
}

QImage inAFreshEditor(const TestChartToolsData& record, const QString&)
{
    VTestChartTools tool;
    tool.applyRecord(record);
    return tool.chartImage();
}

/// An editor that has shown all records before this one.
QImage inTheSameEditor(const TestChartToolsData& record, const QString&)
{
    if (!sameEditor)
        sameEditor = std::make_unique<VTestChartTools>();
    sameEditor->applyRecord(record);
    return sameEditor->chartImage();
}

/// Saved as the user's confirmation saves it.
QImage savedAndReadBack(const TestChartToolsData& record, const QString&)
{
    const QTemporaryDir folder;
    VTestChartTools tool;
    const Host host(tool);
    tool.setSavePath(folder.path(), QString());
    tool.applyRecord(record);
    tool.slotAddConfirmButtonClicked();
    return host.hears(2) ? QImage(host.last().path) : QImage();
}

QImage byTheCommandLine(const TestChartToolsData&, const QString& path)
{
    QProcess vdchart;
    vdchart.start(programPath("vdchart"),
                  {QStringLiteral("render"), path, QStringLiteral("-o"), QStringLiteral("-")});
    return vdchart.waitForFinished(120000) ? QImage::fromData(vdchart.readAllStandardOutput()) : QImage();
}

/// A way from a record to the pixels of its chart. `path` is the record's file.
struct Way
{
    const char* name;
    QImage (*render)(const TestChartToolsData& record, const QString& path);
};

const Way firstWay = {"in a fresh editor", inAFreshEditor};
const Way otherWays[] = {{"in the same editor", inTheSameEditor},
                         {"saved and read back", savedAndReadBack},
                         {"by the command line", byTheCommandLine}};

} // namespace

/// The forty records in tests/golden: every way of rendering them gives the same bytes.
/// VD_UPDATE_RECORDS=1 writes the records anew, as the writer writes them, and the hashes of their pixels.
class TestRecordFiles : public TestCase
{
    Q_OBJECT

private:
    QMap<QString, QByteArray> m_hashes;

    static bool isUpdate() { return qEnvironmentVariableIsSet("VD_UPDATE_RECORDS"); }

    static void eachRecord()
    {
        QTest::addColumn<QString>("path");
        for (const QString& name : recordNames())
            QTest::newRow(qPrintable(name)) << recordFolder().filePath(name);
    }

private Q_SLOTS:
    /// What the programs do.
    void initTestCase()
    {
        QApplication::setFont(chartFont());
        VTestChartTools tool;
        tool.loadLanguageFiles({QStringLiteral(":/vardeno/translations/en.ts")});
        tool.switchLanguage(QStringLiteral("en"));
    }

    void cleanupTestCase()
    {
        sameEditor.reset();
        QByteArray lines;
        for (auto hash = m_hashes.cbegin(); hash != m_hashes.cend(); ++hash)
            lines += hash.value() + "  " + hash.key().toUtf8() + '\n';
        if (isUpdate())
            QVERIFY(writeFile(recordFolder().filePath(QStringLiteral("pixels.sha256")), lines));
    }

    void count()
    {
        QCOMPARE(recordNames().size(), recordCount);
        int withoutText = 0;
        for (const QString& name : recordNames())
            withoutText += isWithoutText(ChartRecordFile::read(recordFolder().filePath(name)).record) ? 1 : 0;
        QVERIFY(withoutText >= 15);
        if (!isUpdate())
            QCOMPARE(goldenHashes().size(), withoutText);
    }

    /// Each field has at least two values among the records, and each choice of a few has all of them.
    void everyFieldIsCovered()
    {
        QMap<QString, QSet<QByteArray>> values;
        for (const QString& name : recordNames()) {
            const QJsonObject document =
                QJsonDocument::fromJson(contents(recordFolder().filePath(name))).object();
            for (const QString& group : document.keys()) {
                const QJsonObject fields = document.value(group).toObject();
                for (const QString& field : fields.keys())
                    values[group + '.' + field].insert(
                        QJsonDocument(QJsonArray{fields.value(field)}).toJson(QJsonDocument::Compact));
            }
        }
        QCOMPARE(values.size(), 49);
        for (auto field = values.cbegin(); field != values.cend(); ++field) {
            const bool isFlag = field.value().contains("[true]") || field.value().contains("[false]");
            const int least = isFlag ? 2 : 3;
            QVERIFY2(field.value().size() >= least, qPrintable(field.key()));
        }
        QCOMPARE(values.value(QStringLiteral("inLineData.serialPosition")).size(), 3);
        QCOMPARE(values.value(QStringLiteral("inLineData.serialSort")).size(), 4);
        QCOMPARE(values.value(QStringLiteral("logoData.displayPosition")).size(), 5);
    }

    void roundTrip_data() { eachRecord(); }

    void roundTrip()
    {
        QFETCH(QString, path);
        const auto reading = ChartRecordFile::read(path);
        QCOMPARE(reading.problems, QStringList());
        if (isUpdate())
            QCOMPARE(ChartRecordFile::write(path, reading.record, reading.document), QString());

        // In a folder of its own, from which the relative path leads nowhere else.
        const QTemporaryDir folder;
        const QString copy = folder.filePath(QStringLiteral("record.json"));
        QVERIFY(QFile::copy(path, copy));
        const auto copied = ChartRecordFile::read(copy);
        QCOMPARE(ChartRecordFile::write(copy, copied.record, copied.document), QString());
        QCOMPARE(QString::fromUtf8(contents(copy)), QString::fromUtf8(contents(path)));
    }

    void samePixels_data() { eachRecord(); }

    void samePixels()
    {
        QFETCH(QString, path);
        const TestChartToolsData record = ChartRecordFile::read(path).record;
        const QImage chart = firstWay.render(record, path);
        QCOMPARE(chart.size(), QSize(record.publicData.resolutionWidth, record.publicData.resolutionHeight));
        for (const Way& way : otherWays) {
            const QImage other = way.render(record, path);
            QCOMPARE(other.size(), chart.size());
            QVERIFY2(pixels(other) == pixels(chart), way.name);
        }
        if (!isWithoutText(record))
            return;
        const QString name = QFileInfo(path).fileName();
        m_hashes.insert(name, hashOf(chart));
        if (!isUpdate())
            QCOMPARE(m_hashes.value(name), goldenHashes().value(name));
    }
};

VD_TEST_MAIN(TestRecordFiles)
#include "tst_recordfiles.moc"

#include "readingreport.h"

#include <readingpicture.h>

#include <QBuffer>

#include <algorithm>

using namespace WallReading;

namespace {

constexpr int mostSide = 1600; ///< pixels of a picture on the page

constexpr char head[] = R"(<!DOCTYPE html>
<html lang="en"><head><meta charset="utf-8"><title>What the wall shows</title><style>
body { font: 16px sans-serif; margin: 2em auto; max-width: 1000px; padding: 0 1em; color: #222; background: #fff }
img { max-width: 100%; image-rendering: auto } td, th { padding: .3em .6em; text-align: left; vertical-align: top }
.plan { border-collapse: collapse } .plan td { border: 1px solid #999; text-align: center; font-size: 11px; color: #777 }
.plan .bad { background: #d22; color: #fff; font-weight: bold } .plan .unseen { background: #bbb; color: #333 }
.pair img { width: 220px } figure { margin: 1em 0 }
</style></head><body>
)";

QString imageTag(const QImage& image, const QString& alternative)
{
    QImage small = image;
    if (std::max(image.width(), image.height()) > mostSide)
        small = image.scaled(mostSide, mostSide, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    small.save(&buffer, "JPG", 88);
    return QStringLiteral("<img alt=\"%1\" src=\"data:image/jpeg;base64,%2\">")
        .arg(alternative.toHtmlEscaped(), QString::fromLatin1(bytes.toBase64()));
}

const Finding* findingAt(const Reading& reading, int row, int column)
{
    const auto found =
        std::find_if(reading.findings.begin(), reading.findings.end(), [&](const Finding& finding) {
            return finding.cabinet.row == row && finding.cabinet.column == column;
        });
    return found == reading.findings.end() ? nullptr : &*found;
}

QString planCell(const Reading& reading, const Chart& chart, std::size_t cabinet)
{
    const Finding* finding =
        findingAt(reading, chart.cabinets.rowOf(cabinet), chart.cabinets.columnOf(cabinet));
    const QString kind = !finding                      ? QString()
                         : isAccusation(finding->kind) ? QStringLiteral(" class=\"bad\"")
                                                       : QStringLiteral(" class=\"unseen\"");
    const QString title = finding ? sentence(*finding) : QStringLiteral("right");
    return QStringLiteral("<td%1 title=\"%2\">%3</td>")
        .arg(kind, title.toHtmlEscaped(), chart.cabinets.cabinets[cabinet].name.toHtmlEscaped());
}

QString plan(const Reading& reading, const Chart& chart)
{
    QString text = QStringLiteral("<h2>The wall</h2>\n<table class=\"plan\">\n");
    for (std::size_t i = 0; i < chart.cabinets.cabinets.size(); ++i) {
        if (chart.cabinets.columnOf(i) == 0)
            text += QStringLiteral("<tr>");
        text += planCell(reading, chart, i);
        if (chart.cabinets.columnOf(i) == chart.cabinets.columns - 1)
            text += QStringLiteral("</tr>\n");
    }
    return text + QStringLiteral("</table>\n");
}

QString sentenceList(const Reading& reading)
{
    QString text = QStringLiteral("<ul>\n");
    for (const QString& sentence : reading.sentences())
        text += QStringLiteral("<li>%1</li>\n").arg(sentence.toHtmlEscaped());
    return text + QStringLiteral("</ul>\n");
}

QString badCabinets(const Reading& reading, const Chart& chart)
{
    QString rows;
    for (const Finding& finding : reading.findings) {
        if (!isAccusation(finding.kind))
            continue;
        rows += QStringLiteral("<tr class=\"pair\"><td>%1</td><td>%2</td><td>%3</td></tr>\n")
                    .arg(sentence(finding).toHtmlEscaped(),
                         imageTag(WallReading::cutOut(reading.rectified, chart, finding.cabinet),
                                  QStringLiteral("shown")),
                         imageTag(WallReading::cutOut(chart.picture, chart, finding.cabinet),
                                  QStringLiteral("expected")));
    }
    if (rows.isEmpty())
        return rows;
    return QStringLiteral(
               "<h2>Cabinets that are wrong</h2>\n<table><tr><th></th><th>it shows</th><th>it should "
               "show</th></tr>\n") +
           rows + QStringLiteral("</table>\n");
}

} // namespace

QByteArray readingReport(const Reading& reading, const Chart& chart, const QString& name)
{
    QString text = QLatin1String(head);
    text += QStringLiteral("<h1>%1</h1>\n").arg(name.toHtmlEscaped());
    text += sentenceList(reading);
    if (reading.isLocated) {
        text += plan(reading, chart);
        text += QStringLiteral("<h2>What the wall shows</h2>\n<figure>%1</figure>\n")
                    .arg(imageTag(WallReading::markedPicture(reading, chart),
                                  QStringLiteral("the straightened photograph")));
        text += badCabinets(reading, chart);
    }
    return (text + QStringLiteral("</body></html>\n")).toUtf8();
}

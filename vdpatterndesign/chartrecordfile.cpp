#include "chartrecordfile.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSaveFile>

#include <cmath>

namespace vardeno::testcharttools::ChartRecordFile {

namespace {

constexpr char formatName[] = "testchart";
constexpr int formatVersion = 1;

/// The fields of each group, with the range of every number: the one table that reader and writer go by.
template <typename Visitor, typename Data>
void visitFields(Visitor& visit, Data& record)
{
    visit.group("basicData", [&, &data = record.basicData] {
        visit.field("colorStripeColors", data.colorStripeColors);
        visit.field("gradientColors", data.gradientColors);
        visit.field("oddColor", data.oddColor);
        visit.field("evenColor", data.evenColor);
        visit.field("chessChecked", data.chessChecked);
        visit.field("colorBarChecked", data.colorBarChecked);
        visit.field("gradientChecked", data.gradientChecked);
    });
    visit.group("publicData", [&, &data = record.publicData] {
        visit.field("brightness", data.brightness, 0, 100);
        visit.field("resolutionWidth", data.resolutionWidth, 16, 4320);
        visit.field("resolutionHeight", data.resolutionHeight, 16, 4320);
        visit.field("boxRow", data.boxRow, 1, 100);
        visit.field("boxCol", data.boxCol, 1, 100);
        visit.field("showOutBorder", data.showOutBorder);
        visit.field("outBorderWidth", data.outBorderWidth, 1, 100);
        visit.field("outBorderColor", data.outBorderColor);
    });
    visit.group("inLineData", [&, &data = record.inLineData] {
        visit.field("showCircle", data.showCircle);
        visit.field("circleSize", data.circleSize, 1, 16384);
        visit.field("circleWidth", data.circleWidth, 1, 100);
        visit.field("circleColor", data.circleColor);
        visit.field("showDiagonal", data.showDiagonal);
        visit.field("diagonalWidth", data.diagonalWidth, 1, 100);
        visit.field("diagonalColor", data.diagonalColor);
        visit.field("showSerialNumber", data.showSerialNumber);
        visit.field("serialSize", data.serialSize, 1, 100);
        visit.field("serialColor", data.serialColor);
        visit.field("letterMode", data.letterMode);
        visit.field("numMode", data.numMode);
        visit.field("combinationMode", data.combinationMode);
        visit.field("serialPosition", data.serialPosition, 0, 2);
        visit.field("serialSort", data.serialSort, 0, 3);
    });
    visit.group("logoData", [&, &data = record.logoData] {
        visit.field("showLogo", data.showLogo);
        visit.field("pictureLogo", data.pictureLogo);
        visit.field("textLogo", data.textLogo);
        visit.field("logoText", data.logoText);
        visit.field("textSize", data.textSize, 0, 100);
        visit.field("textColor", data.textColor);
        visit.field("scale", data.scale, 0, 200);
        visit.field("picturePath", data.picturePath);
        visit.field("displayPosition", data.displayPosition, 0, 4);
        visit.field("offsetX", data.offsetX, 0, 16384);
        visit.field("offsetY", data.offsetY, 0, 16384);
        visit.field("opacity", data.opacity, 0, 100);
    });
    visit.group("selfData", [&, &data = record.selfData] {
        visit.field("showSelfText", data.showSelfText);
        visit.field("selfText", data.selfText);
        visit.field("selfTextSize", data.selfTextSize, 1, 200);
        visit.field("selfTextColor", data.selfTextColor);
        visit.field("showResolution", data.showResolution);
        visit.field("resolutionTextSize", data.resolutionTextSize, 1, 200);
        visit.field("resolutionTextColor", data.resolutionTextColor);
    });
}

class Writer
{
public:
    QJsonObject document{{QStringLiteral("format"), QLatin1String(formatName)},
                         {QStringLiteral("version"), formatVersion}};

    template <typename Fields>
    void group(const char* name, Fields fields)
    {
        m_group = QJsonObject();
        fields();
        document.insert(QLatin1String(name), m_group);
    }

    void field(const char* name, bool value) { insert(name, value); }
    void field(const char* name, int value, int, int) { insert(name, value); }
    void field(const char* name, const std::string& value) { insert(name, QString::fromStdString(value)); }
    void field(const char* name, const RgbaColor& value) { insert(name, array(value)); }
    void field(const char* name, const std::map<int, QColor>& colors)
    {
        QJsonArray list;
        for (const auto& [row, color] : colors)
            list.append(array(toRgbaColor(color)));
        insert(name, list);
    }

private:
    static QJsonArray array(const RgbaColor& color)
    {
        return {color.red, color.green, color.blue, color.alpha};
    }
    void insert(const char* name, const QJsonValue& value) { m_group.insert(QLatin1String(name), value); }

    QJsonObject m_group;
};

/// Shows a value of a document in a message.
QString shown(const QJsonValue& value)
{
    const QByteArray inArray = QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact);
    return QString::fromUtf8(inArray.mid(1, inArray.size() - 2));
}

class Reader
{
public:
    Reader(const QJsonObject& document, QStringList& problems)
        : m_document(document)
        , m_problems(problems)
    {
    }

    template <typename Fields>
    void group(const char* name, Fields fields)
    {
        m_groupName = QLatin1String(name);
        const QJsonValue value = m_document.value(m_groupName);
        if (!value.isUndefined() && !value.isObject())
            m_problems.append(QStringLiteral("%1: %2 is not an object").arg(m_groupName, shown(value)));
        m_group = value.toObject();
        fields();
    }

    void field(const char* name, bool& target)
    {
        const QJsonValue value = find(name);
        if (value.isBool())
            target = value.toBool();
        else
            refuse(name, value, QStringLiteral("is not true or false"));
    }

    void field(const char* name, int& target, int least, int most)
    {
        const QJsonValue value = find(name);
        if (!isWhole(value))
            refuse(name, value, QStringLiteral("is not a whole number"));
        else if (value.toDouble() < least || value.toDouble() > most)
            refuse(name, value, QStringLiteral("is not in %1..%2").arg(least).arg(most));
        else
            target = value.toInt();
    }

    void field(const char* name, std::string& target)
    {
        const QJsonValue value = find(name);
        if (value.isString())
            target = value.toString().toStdString();
        else
            refuse(name, value, QStringLiteral("is not a text"));
    }

    void field(const char* name, RgbaColor& target)
    {
        const QJsonValue value = find(name);
        if (!readColor(value, target))
            refuse(name, value, colorExpected());
    }

    void field(const char* name, std::map<int, QColor>& target)
    {
        const QJsonValue value = find(name);
        if (!value.isArray()) {
            refuse(name, value, QStringLiteral("is not a list of colors"));
            return;
        }
        const QJsonArray list = value.toArray();
        for (int row = 0; row < list.size(); ++row) {
            RgbaColor color;
            if (readColor(list.at(row), color))
                target[row] = toQColor(color);
            else
                refuse(name, list.at(row), colorExpected());
        }
    }

private:
    static QString colorExpected()
    {
        return QStringLiteral("is not a color [r, g, b, a] of numbers in 0..255");
    }

    static bool isWhole(const QJsonValue& value)
    {
        return value.isDouble() && std::trunc(value.toDouble()) == value.toDouble();
    }

    static bool readColor(const QJsonValue& value, RgbaColor& color)
    {
        const QJsonArray parts = value.toArray();
        if (parts.size() != 4)
            return false;
        for (const QJsonValue& part : parts) {
            if (!isWhole(part) || part.toDouble() < 0 || part.toDouble() > 255)
                return false;
        }
        color = {parts.at(0).toInt(), parts.at(1).toInt(), parts.at(2).toInt(), parts.at(3).toInt()};
        return true;
    }

    QJsonValue find(const char* name) const { return m_group.value(QLatin1String(name)); }

    /// A missing field keeps its default.
    void refuse(const char* name, const QJsonValue& value, const QString& why)
    {
        if (!value.isUndefined())
            m_problems.append(
                QStringLiteral("%1.%2: %3 %4").arg(m_groupName, QLatin1String(name), shown(value), why));
    }

    const QJsonObject m_document;
    QStringList& m_problems;
    QString m_groupName;
    QJsonObject m_group;
};

Reading failed(const QString& problem)
{
    return {TestChartToolsData(), {problem}};
}

} // namespace

QByteArray toJson(const TestChartToolsData& record)
{
    Writer writer;
    visitFields(writer, record);
    return QJsonDocument(writer.document).toJson();
}

Reading fromJson(const QByteArray& json)
{
    QJsonParseError error{};
    const QJsonDocument document = QJsonDocument::fromJson(json, &error);
    if (error.error != QJsonParseError::NoError)
        return failed(QStringLiteral("not JSON: %1 at byte %2").arg(error.errorString()).arg(error.offset));
    const QJsonObject root = document.object();
    if (root.value(QStringLiteral("format")) != QJsonValue(QLatin1String(formatName)))
        return failed(QStringLiteral("format: %1 expected").arg(QLatin1String(formatName)));
    if (root.value(QStringLiteral("version")) != QJsonValue(formatVersion))
        return failed(QStringLiteral("version: %1 expected").arg(formatVersion));

    Reading reading;
    Reader reader(root, reading.problems);
    visitFields(reader, reading.record);
    return reading;
}

Reading read(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return failed(QStringLiteral("%1: %2").arg(path, file.errorString()));
    return fromJson(file.readAll());
}

QString write(const QString& path, const TestChartToolsData& record)
{
    const QByteArray json = toJson(record);
    QSaveFile file(path);
    const bool written =
        file.open(QIODevice::WriteOnly) && file.write(json) == json.size() && file.flush() && file.commit();
    return written ? QString() : QStringLiteral("%1: %2").arg(path, file.errorString());
}

} // namespace vardeno::testcharttools::ChartRecordFile

#pragma once

#include <testcharttoolsdata.h>

#include <QRandomGenerator>
#include <QSize>
#include <QString>

#include <algorithm>
#include <string>
#include <vector>

/// What random records keep to, within the controls' ranges.
struct RecordLimits
{
    QSize chart = {400, 400}; ///< from 16 x 16
    int cabinets = 100;       ///< rows and columns
    int textSize = 200;       ///< font pixels
    int distance = 16384;     ///< chart pixels: the circles' radius, the logo's shift
};

/// Random chart records, the same ones for the same seed.
class RandomRecords
{
public:
    /// `pictures`: the files that the logos are chosen from, besides the built-in picture.
    RandomRecords(quint32 seed, std::vector<std::string> pictures, const RecordLimits& limits = {})
        : m_random(seed)
        , m_pictures(std::move(pictures))
        , m_limits(limits)
    {
    }

    vardeno::testcharttools::TestChartToolsData next()
    {
        vardeno::testcharttools::TestChartToolsData record;
        record.basicData = basic();
        record.publicData = {number(0, 100),
                             side(m_limits.chart.width()),
                             side(m_limits.chart.height()),
                             cabinets(),
                             cabinets(),
                             flag(),
                             number(1, 100),
                             rgba()};
        record.inLineData = inLine();
        record.logoData = logo();
        record.selfData = {flag(), text(50).toStdString(), textSize(200), rgba(),
                           flag(), textSize(200),          rgba()};
        return record;
    }

    int number(int least, int most) { return m_random.bounded(least, most + 1); }
    bool flag() { return m_random.bounded(2) == 1; }
    QColor color() { return {number(0, 255), number(0, 255), number(0, 255), flag() ? 255 : number(0, 255)}; }
    /// Of the chart, mostly small: every pixel is drawn in every layer.
    int side(int longest) { return number(16, number(0, 3) == 0 ? longest : std::min(longest, 200)); }
    /// Rows or columns, mostly few: every label is drawn.
    int cabinets()
    {
        return number(1, number(0, 4) == 0 ? m_limits.cabinets : std::min(m_limits.cabinets, 10));
    }
    /// Mostly small: large ones are slow to fit.
    int textSize(int largest)
    {
        return number(1, number(0, 9) == 0 ? std::min(largest, m_limits.textSize) : 30);
    }
    /// Mostly within the limits, so that it matters.
    int distance(int least) { return number(least, number(0, 9) == 0 ? 16384 : m_limits.distance); }

    /// Now and then in other scripts: those are slow to fit.
    QString text(int longest)
    {
        if (number(0, 19) == 0)
            return QString::fromUtf8("屏幕 \u05d0\u0416");
        const QString letters = QString::fromUtf8("ABCxyz 0189.-_*\u00e9");
        QString text;
        const int length = number(0, longest);
        for (int i = 0; i < length; ++i)
            text.append(letters.at(number(0, letters.size() - 1)));
        return text;
    }

    std::map<int, QColor> colors()
    {
        std::map<int, QColor> colors;
        const int count = number(0, 8);
        for (int row = 0; row < count; ++row)
            colors[row] = color();
        return colors;
    }

    /// Empty for the built-in picture, which is large.
    std::string picture()
    {
        return number(0, 3) > 0 ? m_pictures[number(0, int(m_pictures.size()) - 1)] : std::string();
    }

private:
    vardeno::testcharttools::RgbaColor rgba() { return vardeno::testcharttools::toRgbaColor(color()); }

    vardeno::testcharttools::BasicChartData basic()
    {
        vardeno::testcharttools::BasicChartData data;
        data.colorStripeColors = colors();
        data.gradientColors = colors();
        data.oddColor = rgba();
        data.evenColor = rgba();
        data.chessChecked = flag();
        data.colorBarChecked = !data.chessChecked;
        data.gradientChecked = flag();
        return data;
    }

    vardeno::testcharttools::InLineChartData inLine()
    {
        vardeno::testcharttools::InLineChartData data;
        data.showCircle = flag();
        data.circleSize = distance(1);
        data.circleWidth = number(1, 100);
        data.circleColor = rgba();
        data.showDiagonal = flag();
        data.diagonalWidth = number(1, 100);
        data.diagonalColor = rgba();
        data.showSerialNumber = flag();
        data.serialSize = textSize(100);
        data.serialColor = rgba();
        const int mode = number(0, 2);
        data.letterMode = mode == 0;
        data.numMode = mode == 1;
        data.combinationMode = mode == 2;
        data.serialPosition = number(0, 2);
        data.serialSort = number(0, 3);
        return data;
    }

    vardeno::testcharttools::LogoChartData logo()
    {
        vardeno::testcharttools::LogoChartData data;
        data.showLogo = flag();
        data.pictureLogo = flag();
        data.textLogo = !data.pictureLogo;
        data.logoText = text(60).toStdString();
        data.textSize = textSize(100);
        data.textColor = rgba();
        data.scale = number(0, 200);
        data.picturePath = picture();
        data.displayPosition = number(0, 4);
        data.offsetX = distance(0);
        data.offsetY = distance(0);
        data.opacity = number(0, 100);
        return data;
    }

    QRandomGenerator m_random;
    std::vector<std::string> m_pictures;
    RecordLimits m_limits;
};

#include "testcase.h"

#include <lightmodel.h>

#include <opencv2/imgproc.hpp>

#include <cmath>

using namespace WallReading;

/// What the camera's light is taken for, on chessboards whose light is known.
class TestLightModel : public TestCase
{
    Q_OBJECT

private:
    static constexpr int side = 20; ///< of a field, in pixels
    static constexpr int columns = 16;
    static constexpr int rows = 9;

    /// Every other field in one of the colours, with a small mark in white in each.
    static cv::Mat chessboard(const cv::Scalar& even, const cv::Scalar& odd)
    {
        cv::Mat chart(rows * side, columns * side, CV_32FC3);
        for (int i = 0; i < rows * columns; ++i) {
            const cv::Rect field(i % columns * side, i / columns * side, side, side);
            chart(field).setTo((i / columns + i % columns) % 2 == 0 ? even : odd);
            chart(cv::Rect(field.x + 8, field.y + 8, 4, 3)).setTo(cv::Scalar::all(255));
        }
        return chart;
    }

    /// As a camera shows it that adds `pedestal`, and is darker by up to a fifth to the right.
    static cv::Mat photographed(const cv::Mat& chart, double slope, double pedestal)
    {
        cv::Mat seen = chart * slope;
        for (int x = 0; x < seen.cols; ++x)
            seen.col(x) *= 1 - 0.2 * x / seen.cols;
        return cv::min(seen + cv::Scalar::all(pedestal), cv::Scalar::all(255));
    }

private Q_SLOTS:
    void expectsWhatIsSeen_data()
    {
        QTest::addColumn<QVector<int>>("colors"); ///< the even one, the odd one
        QTest::addColumn<double>("slope");
        QTest::addColumn<double>("pedestal");
        QTest::addColumn<bool>("covered");
        const QVector<int> darkGreys = {24, 24, 24, 56, 56, 56};
        const QVector<int> bright = {255, 170, 255, 85, 170, 255};
        QTest::newRow("as it is") << bright << 0.8 << 0.0 << false;
        QTest::newRow("dark greys in a lit room") << darkGreys << 0.9 << 40.0 << false;
        QTest::newRow("with people before it") << bright << 0.8 << 20.0 << true;
        QTest::newRow("dark greys, with people before it") << darkGreys << 0.9 << 30.0 << true;
        QTest::newRow("overexposed, with people before it") << bright << 1.3 << 10.0 << true;
    }

    /// Of the channels that the camera could tell, up to 6 of 255 off in the mean of any right field.
    void expectsWhatIsSeen()
    {
        QFETCH(QVector<int>, colors);
        QFETCH(double, slope);
        QFETCH(double, pedestal);
        QFETCH(bool, covered);
        const cv::Mat chart = chessboard({double(colors[0]), double(colors[1]), double(colors[2])},
                                         {double(colors[3]), double(colors[4]), double(colors[5])});
        cv::Mat seen = photographed(chart, slope, pedestal);
        const cv::Rect people(4 * side, 5 * side, 6 * side, 4 * side);
        if (covered)
            seen(people).setTo(cv::Scalar::all(8));
        const Light light = lightOf(chart, seen, cv::Mat(chart.size(), CV_8U, cv::Scalar(255)));
        QVERIFY(light.isKnown);
        for (int i = 0; i < rows * columns; ++i) {
            const cv::Rect field(i % columns * side, i / columns * side, side, side);
            if (covered && (field & people).area() > 0)
                continue;
            const cv::Rect corner(field.x + 1, field.y + 1, 6, 6);
            const double gain = cv::mean(light.gain(corner))[0];
            for (int channel = 0; channel < 3; ++channel) {
                const double is = cv::mean(seen(corner))[channel];
                const double black = double(light.pedestal[channel]);
                const double should = black + (cv::mean(light.toned(corner))[channel] - black) * gain;
                if (is < 245)
                    QVERIFY2(
                        std::abs(is - should) < 6,
                        qPrintable(QStringLiteral("field %1: %2 instead of %3").arg(i).arg(is).arg(should)));
            }
        }
    }

    void knowsNothingOfTooFewPixels()
    {
        const cv::Mat chart = chessboard(cv::Scalar::all(255), cv::Scalar::all(0));
        QVERIFY(!lightOf(chart, chart, cv::Mat(chart.size(), CV_8U, cv::Scalar(0))).isKnown);
    }
};

VD_TEST_MAIN(TestLightModel)
#include "tst_lightmodel.moc"

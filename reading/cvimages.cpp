#include "cvimages.h"

#include <opencv2/imgproc.hpp>

namespace WallReading {

cv::Mat toMat(const QImage& image)
{
    const QImage rgb = image.convertToFormat(QImage::Format_RGB888);
    return cv::Mat(rgb.height(), rgb.width(), CV_8UC3, const_cast<uchar*>(rgb.constBits()),
                   std::size_t(rgb.bytesPerLine()))
        .clone();
}

QImage toImage(const cv::Mat& rgb)
{
    return QImage(rgb.data, rgb.cols, rgb.rows, int(rgb.step), QImage::Format_RGB888).copy();
}

cv::Mat greyOf(const cv::Mat& rgb)
{
    cv::Mat grey;
    cv::cvtColor(rgb, grey, cv::COLOR_RGB2GRAY);
    return grey;
}

cv::Mat reduced(const cv::Mat& image, double factor)
{
    if (factor >= 1)
        return image;
    cv::Mat small;
    cv::resize(image, small, {}, factor, factor, cv::INTER_AREA);
    return small;
}

} // namespace WallReading

#include "referencechart.h"

#include <QCoreApplication>
#include <QGridLayout>

namespace vardeno::testcharttools {

namespace {

QColor colorOf(const RgbaColor& color)
{
    return {color.red, color.green, color.blue, color.alpha};
}

std::string defaultPicture()
{
    return (QCoreApplication::applicationDirPath() + QLatin1String("/..") +
            QLatin1String("/share/themes/images/default/testcharttools/logo_1025.png"))
        .toStdString();
}

} // namespace

ReferenceChart::ReferenceChart()
{
    QPalette dark = m_view.palette();
    dark.setColor(QPalette::Window, Qt::black);
    m_view.setPalette(dark);
    m_logos->addWidget(pictureLogo);
    m_logos->addWidget(textLogo);
    auto* cell = new QGridLayout(&m_view);
    cell->setContentsMargins(0, 0, 0, 0);
    for (QWidget* layer :
         std::initializer_list<QWidget*>{basic, sequence, inLine, texts, m_logos, veil, border}) {
        cell->addWidget(layer, 0, 0);
        layer->raise();
    }
    basic->setColorStripeList(&m_colorBar);
    pictureLogo->setPicPath(defaultPicture());
}

void ReferenceChart::apply(const TestChartToolsData& record)
{
    applyBasic(record.basicData);
    applyPublic(record.publicData);
    applyInLine(record.inLineData);
    applyLogo(record.logoData);
    applySelf(record.selfData);
}

void ReferenceChart::setColorBar(const std::map<int, QColor>& colors)
{
    m_colorBar.clear();
    for (const auto& [row, color] : colors)
        (new QListWidgetItem(&m_colorBar))->setBackground(QBrush(color));
}

void ReferenceChart::showLogo(Logo logo)
{
    m_logos->setCurrentIndex(logo == Logo::Text ? 1 : 0);
    pictureLogo->setVisible(logo == Logo::Picture);
    textLogo->setVisible(logo == Logo::Text);
}

QImage ReferenceChart::snapshot()
{
    QPixmap picture(m_view.size());
    picture.fill(Qt::black);
    m_view.render(&picture, QPoint(), QRegion(), QWidget::DrawWindowBackground | QWidget::DrawChildren);
    return picture.toImage();
}

void ReferenceChart::applyBasic(const BasicChartData& data)
{
    basic->setMode(data.chessChecked ? 0 : data.gradientChecked ? 1 : 2);
    basic->setOddColor(colorOf(data.oddColor));
    basic->setEvenColor(colorOf(data.evenColor));
    setColorBar(data.colorStripeColors);
}

void ReferenceChart::applyPublic(const PublicChartData& data)
{
    veil->setBrightness(ushort(data.brightness));
    setChartSize({data.resolutionWidth, data.resolutionHeight});
    const auto rows = ushort(data.boxRow);
    basic->setRows(rows);
    inLine->setRows(rows);
    texts->setRows(rows);
    border->setRows(rows);
    const auto columns = ushort(data.boxCol);
    basic->setColumns(columns);
    inLine->setColumns(columns);
    texts->setColumns(columns);
    border->setColumns(columns);
    border->setOutLineWidth(data.outBorderWidth);
    border->setOutLineVisible(data.showOutBorder);
    border->setOutLineColor(colorOf(data.outBorderColor));
}

void ReferenceChart::applyInLine(const InLineChartData& data)
{
    inLine->setCircleVisible(data.showCircle);
    inLine->setCircleRadius(ushort(data.circleSize));
    inLine->setCircleLineWidth(ushort(data.circleWidth));
    inLine->setCircleColor(colorOf(data.circleColor));
    inLine->setDiagonalVisible(data.showDiagonal);
    inLine->setDiagonalLineWidth(ushort(data.diagonalWidth));
    inLine->setDiagonalColor(colorOf(data.diagonalColor));
    inLine->setSerialVisible(data.showSerialNumber);
    inLine->setSerialSize(ushort(data.serialSize));
    inLine->setSerialColor(colorOf(data.serialColor));
    inLine->setSerialMode(data.letterMode ? 0 : data.numMode ? 1 : 2);
    inLine->setSerialPosition(uint(data.serialPosition));
    inLine->setSerialSort(uint(data.serialSort));
}

void ReferenceChart::applyLogo(const LogoChartData& data)
{
    pictureLogo->setScale(data.scale);
    pictureLogo->setPosition(data.displayPosition);
    textLogo->setPosition(data.displayPosition);
    pictureLogo->setMoveX(data.offsetX);
    textLogo->setMoveX(data.offsetX);
    pictureLogo->setMoveY(data.offsetY);
    textLogo->setMoveY(data.offsetY);
    pictureLogo->setOpacity(data.opacity);
    textLogo->setOpacity(data.opacity);
    textLogo->setText(QString::fromStdString(data.logoText));
    textLogo->setTextSize(data.textSize);
    textLogo->setTextColor(colorOf(data.textColor));
    pictureLogo->setPicPath(data.picturePath.empty() ? defaultPicture() : data.picturePath);
    showLogo(!data.showLogo ? Logo::None : data.textLogo ? Logo::Text : Logo::Picture);
}

void ReferenceChart::applySelf(const SelfChartData& data)
{
    texts->setSelfTextVisible(data.showSelfText);
    texts->setSelfText(QString::fromStdString(data.selfText));
    texts->setSelfTextSize(ushort(data.selfTextSize));
    texts->setSelfTextColor(colorOf(data.selfTextColor));
    texts->setResolutionVisible(data.showResolution);
    texts->setResolutionSize(ushort(data.resolutionTextSize));
    texts->setResolutionColor(colorOf(data.resolutionTextColor));
}

} // namespace vardeno::testcharttools

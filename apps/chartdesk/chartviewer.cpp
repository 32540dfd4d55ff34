#include "chartviewer.h"

#include <QDialogButtonBox>
#include <QFileInfo>
#include <QLabel>
#include <QScreen>
#include <QVBoxLayout>

namespace {

constexpr QSize mostPicture(1120, 630);
constexpr QSize besidesPicture(60, 220); ///< what the screen has to have room for, too

} // namespace

ChartViewer::ChartViewer(const QString& imagePath, const QString& reason, QWidget* parent)
    : QDialog(parent)
{
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowTitle(QFileInfo(imagePath).fileName());
    const QSize room = screen()->availableSize() - besidesPicture;
    const QSize pictureSize = mostPicture.scaled(mostPicture.boundedTo(room), Qt::KeepAspectRatio);
    auto* picture = new QLabel;
    picture->setObjectName(QStringLiteral("chartPicture"));
    picture->setFixedSize(pictureSize);
    auto* text = new QLabel(reason);
    text->setTextFormat(Qt::PlainText);
    text->setWordWrap(true);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(picture);
    layout->addWidget(text);
    layout->addWidget(buttons);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(&m_loader, &ThumbnailLoader::loaded, this, [picture, this](int, const QImage& image) {
        QPixmap pixmap = QPixmap::fromImage(image);
        pixmap.setDevicePixelRatio(devicePixelRatioF());
        picture->setPixmap(pixmap);
    });
    m_loader.load(imagePath, pictureSize * devicePixelRatioF(), 0);
}

#include "paintpiclogowidget.h"

#include "defaultlogo.h"
#include "layers/composition.h"
#include "layers/picturelogolayer.h"
#include "support/chartlog.h"
#include "support/imagefile.h"
#include "support/translation.h"

#include <QDir>
#include <QFileDialog>
#include <QMessageBox>
#include <QPointer>
#include <QSettings>
#include <QStandardPaths>

namespace vardeno::testcharttools {

namespace {

/// The folder of the uploaded pictures; created if need be.
QString uploadFolder()
{
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::AppDataLocation) +
                           QLatin1String("/vtestcharttools/logo");
    QDir().mkpath(folder);
    return folder;
}

/// Why the picture in the file cannot be taken.
QString refusal(const QString& path)
{
    switch (examinePicture(path)) {
    case PictureFile::TooLarge:
        return translated(QStringLiteral("The picture is too large."));
    case PictureFile::Readable:
        return translated(QStringLiteral("The picture is damaged."));
    case PictureFile::Unreadable:
        break;
    }
    return QFile(path).open(QIODevice::ReadOnly)
               ? translated(QStringLiteral("This is not a picture that can be read."))
               : translated(QStringLiteral("The file cannot be opened."));
}

} // namespace

class PaintPicLogoWidget::Impl : public QObject
{
public:
    QString path() const { return QString::fromStdString(picPath); }

    PictureLogoLayer layer;
    QString dialogTitle;
    bool hostTellsRefusals = false;
    std::string picPath;
    CachedPicture picture;
};

PaintPicLogoWidget::PaintPicLogoWidget(QWidget* parent)
    : LayerPainter(parent)
    , d(new Impl)
{
    drawWith(d->layer);
}

PaintPicLogoWidget::~PaintPicLogoWidget() = default;

void PaintPicLogoWidget::setPicPath(std::string path)
{
    assign(d->picPath, path);
}

std::string PaintPicLogoWidget::picPath() const
{
    return d->picPath;
}

bool PaintPicLogoWidget::showsDefaultPicLogo() const
{
    return isDefaultLogo(d->path());
}

void PaintPicLogoWidget::setPosition(int index)
{
    assign(d->layer.position, index);
}

void PaintPicLogoWidget::setMoveX(int pixels)
{
    assign(d->layer.moveX, pixels);
}

void PaintPicLogoWidget::setMoveY(int pixels)
{
    assign(d->layer.moveY, pixels);
}

int PaintPicLogoWidget::appliedMoveX() const
{
    return d->layer.placement.applied.x();
}

int PaintPicLogoWidget::appliedMoveY() const
{
    return d->layer.placement.applied.y();
}

void PaintPicLogoWidget::setOpacity(int percent)
{
    // Compared before it is narrowed, here and for the scale: it is meant.
    if (percent * 0.01 == double(d->layer.opacity))
        return;
    d->layer.opacity = float(percent * 0.01);
    layerChanged();
}

void PaintPicLogoWidget::setScale(int percent)
{
    if (percent * 0.01 == double(d->layer.scale))
        return;
    d->layer.scale = float(percent * 0.01);
    layerChanged();
}

void PaintPicLogoWidget::setDefaultPicLogo()
{
    d->picPath = defaultLogo().toStdString();
    const QPixmap whole = QPixmap::fromImage(d->picture.load(d->path()));
    qCDebug(chartLog) << Q_FUNC_INFO << "picPixmap isNull:" << whole.isNull();
    qCDebug(chartLog) << Q_FUNC_INFO << "picPixmap isNull:" << width();
    setPixmap(whole);
}

void PaintPicLogoWidget::uploadPicLogo()
{
    QSettings settings(QStringLiteral("image"), QStringLiteral("path"));
    const QString lastFolder = settings.value(QStringLiteral("lastImagePath"), QDir::homePath()).toString();
    const QString chosen =
        QFileDialog::getOpenFileName(nullptr, d->dialogTitle, lastFolder,
                                     d->hostTellsRefusals ? QStringLiteral("Files(*.jpg *.jpeg *.bmp *.png)")
                                                          : QStringLiteral("Files(*.jpg *.bmp *.png)"));
    if (chosen.isEmpty()) {
        qCDebug(chartLog) << Q_FUNC_INFO << "fileName open fail";
        return;
    }
    const QImage image = readPicture(chosen);
    if (image.isNull()) {
        refuse(chosen);
        return;
    }
    const QFileInfo file(chosen);
    const QString copy = uploadFolder() + QLatin1Char('/') + file.fileName();
    writeImageWhole(image, copy, "PNG");
    setPicPath(copy.toStdString());
    update(); // the file may be new where its path is not
    settings.setValue(QStringLiteral("lastImagePath"), file.absolutePath());
}

void PaintPicLogoWidget::refuse(const QString& path)
{
    const QPointer<PaintPicLogoWidget> alive(this); // the box waits for the user
    if (!d->hostTellsRefusals && examinePicture(path) != PictureFile::TooLarge)
        QMessageBox::information(this, QStringLiteral("result"), QStringLiteral("Error"), QMessageBox::Ok);
    if (alive)
        Q_EMIT sigLogoRefused(path, refusal(path), pictureSize(path), QSize(largestPicture, largestPicture));
}

bool PaintPicLogoWidget::hostTellsRefusals() const
{
    return d->hostTellsRefusals;
}

void PaintPicLogoWidget::setHostTellsRefusals(bool tells)
{
    d->hostTellsRefusals = tells;
}

void PaintPicLogoWidget::translateTitle()
{
    d->dialogTitle = translated(QStringLiteral("SelectImage"));
}

/// The label's picture is the scaled logo alone; where it stands is decided when it is painted.
bool PaintPicLogoWidget::beginPicture()
{
    d->layer.picture = d->picture.load(d->path());
    d->layer.fit(size());
    setPixmap(QPixmap::fromImage(d->layer.scaled));
    return false;
}

void PaintPicLogoWidget::addTo(Composition& chart)
{
    if (!showsOwnPicture()) // which stands where the logo would
        d->layer.scaled = pixmap(Qt::ReturnByValue).toImage();
    chart.add(d->layer, size());
}

bool PaintPicLogoWidget::sourceChanged() const
{
    return d->picture.isOutdated(d->path());
}

} // namespace vardeno::testcharttools

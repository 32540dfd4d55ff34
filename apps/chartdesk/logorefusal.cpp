#include "logorefusal.h"

#include "hosttext.h"
#include "messagebox.h"

#include <paintpiclogowidget.h>
#include <vtestcharttools.h>

using namespace vardeno::testcharttools;

QString logoRefusal(const QSize& size, const QSize& limit)
{
    if (size.boundedTo(limit) == size)
        return hostText(QStringLiteral("This file is damaged, or no picture that can be read."));
    return hostText(QStringLiteral("The picture has %1 x %2 pixels; a logo has at most %3 x %4."))
        .arg(size.width())
        .arg(size.height())
        .arg(limit.width())
        .arg(limit.height());
}

void tellRefusedLogos(VTestChartTools* editor)
{
    editor->pictureLogo()->setHostTellsRefusals(true);
    const auto tell = [editor](const QString& path, const QString&, const QSize& size, const QSize& limit) {
        QMessageBox* box = messageBox(editor->window(), MessageKind::Warning, logoRefusal(size, limit), path);
        box->addButton(QMessageBox::Ok);
        box->open();
    };
    QObject::connect(editor->pictureLogo(), &PaintPicLogoWidget::sigLogoRefused, editor, tell);
}

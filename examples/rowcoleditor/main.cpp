// A host that places the row/column panel itself: the panel beside a small chart of the three layers that it
// drives.

#include <paintbasicwidget.h>
#include <paintrowcolsequewidget.h>
#include <paintselfwidget.h>
#include <rowcolsequesettingbox.h>

#include <QApplication>
#include <QGridLayout>
#include <QHBoxLayout>

using namespace vardeno::testcharttools;

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    QWidget window;
    window.setWindowTitle(QStringLiteral("Row and column numbers"));

    auto* chart = new QWidget;
    chart->setFixedSize(960, 540);
    auto* base = new PaintBasicWidget;
    auto* numbers = new PaintRowColSequeWidget;
    auto* texts = new PaintSelfWidget;
    texts->setSelfTextSize(30);
    texts->setResolutionSize(20);
    texts->retranslate();
    auto* layers = new QGridLayout(chart);
    layers->setContentsMargins(0, 0, 0, 0);
    for (QWidget* layer : std::initializer_list<QWidget*>{base, numbers, texts})
        layers->addWidget(layer, 0, 0);

    auto* panel = new RowColSequeSettingBox;
    panel->setPaintRowColSequeWidget(numbers);
    panel->setPaintBasicWidget(base);
    panel->setPaintSelfWidget(texts);
    panel->initShow();

    auto* row = new QHBoxLayout(&window);
    row->addWidget(chart);
    row->addWidget(panel, 0, Qt::AlignTop);
    window.show();
    return QApplication::exec();
}

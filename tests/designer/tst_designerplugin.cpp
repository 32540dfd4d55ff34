#include "testcase.h"

#include <QtUiPlugin/QDesignerCustomWidgetCollectionInterface>
#include <QtUiPlugin/QDesignerCustomWidgetInterface>

#include <QDirIterator>
#include <QIcon>
#include <QPluginLoader>
#include <QXmlStreamReader>

/// The plugin as Qt Designer loads it.
class TestDesignerPlugin : public TestCase
{
    Q_OBJECT

    static QList<QDesignerCustomWidgetInterface*> offered()
    {
        auto* plugin = QPluginLoader(QStringLiteral(VD_DESIGNER_PLUGIN)).instance();
        const auto* collection = qobject_cast<QDesignerCustomWidgetCollectionInterface*>(plugin);
        return collection ? collection->customWidgets() : QList<QDesignerCustomWidgetInterface*>();
    }

    static QDesignerCustomWidgetInterface* offer(const QString& name)
    {
        for (QDesignerCustomWidgetInterface* widget : offered()) {
            if (widget->name() == name)
                return widget;
        }
        return nullptr;
    }

    /// Whether hosts find the header `name` by its name alone.
    static bool isPublicHeader(const QString& name)
    {
        for (const char* library : {"vdpatterndesign", "vdwidget"}) {
            QFile list(sourcePath(library) + QStringLiteral("/CMakeLists.txt"));
            QDirIterator header(sourcePath(library), {name}, QDir::Files, QDirIterator::Subdirectories);
            if (header.hasNext() && list.open(QIODevice::ReadOnly) &&
                QString::fromUtf8(list.readAll()).contains(name))
                return true;
        }
        return false;
    }

private Q_SLOTS:
    void offersTheToolAndTheControls()
    {
        QPluginLoader loader(QStringLiteral(VD_DESIGNER_PLUGIN));
        QVERIFY2(loader.load(), qPrintable(loader.errorString()));
        QStringList names;
        for (const QDesignerCustomWidgetInterface* widget : offered())
            names.append(widget->name().section(QStringLiteral("::"), -1));
        names.sort();
        QCOMPARE(names, QStringList({"ComboBox", "ImageWidget", "LineEdit", "PropertyBox", "SearchEdit",
                                     "SpinEditBox", "VLineEdit", "VTestChartTools"}));
    }

    void createsEachWidget_data()
    {
        QTest::addColumn<QString>("name");
        for (const QDesignerCustomWidgetInterface* widget : offered())
            QTest::newRow(qPrintable(widget->name())) << widget->name();
    }

    void createsEachWidget()
    {
        QFETCH(QString, name);
        QWidget form;
        QWidget* widget = offer(name)->createWidget(&form);
        QCOMPARE(QLatin1String(widget->metaObject()->className()), name);
        QCOMPARE(widget->parentWidget(), &form);
        form.show();
        QVERIFY(QTest::qWaitForWindowExposed(&form));
    }

    void tellsOfEachWidget_data() { createsEachWidget_data(); }

    void tellsOfEachWidget()
    {
        QFETCH(QString, name);
        const QDesignerCustomWidgetInterface& widget = *offer(name);
        QVERIFY2(isPublicHeader(widget.includeFile()), qPrintable(widget.includeFile()));
        QCOMPARE(widget.group(), QStringLiteral("Test charts"));
        QVERIFY(!widget.toolTip().isEmpty());
        QCOMPARE(widget.whatsThis(), widget.toolTip());
        QVERIFY(!widget.icon().pixmap(24).isNull());
        QVERIFY(!widget.isContainer());
    }

    void beginsEachWidgetInAForm_data() { createsEachWidget_data(); }

    void beginsEachWidgetInAForm()
    {
        QFETCH(QString, name);
        QXmlStreamReader xml(offer(name)->domXml());
        QVERIFY(xml.readNextStartElement() && xml.name() == QLatin1String("ui"));
        QVERIFY(xml.readNextStartElement() && xml.name() == QLatin1String("widget"));
        QCOMPARE(xml.attributes().value(QStringLiteral("class")).toString(), name);
        const QString object = xml.attributes().value(QStringLiteral("name")).toString();
        QVERIFY(object.at(0).isLower());
        QVERIFY(name.endsWith(object, Qt::CaseInsensitive));
        while (!xml.atEnd())
            xml.readNext();
        QVERIFY2(!xml.hasError(), qPrintable(xml.errorString()));
    }
};

VD_TEST_MAIN(TestDesignerPlugin)
#include "tst_designerplugin.moc"

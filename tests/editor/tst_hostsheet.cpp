#include "charttool.h"

using namespace charttool;

/// A host dresses its own labels and buttons, and the editor among them stays as it is.
class TestHostSheet : public TestCase
{
    Q_OBJECT

private:
    struct Host
    {
        QWidget window;
        QWidget page{&window};
        VTestChartTools tool{&page};
        User user{tool};
    };

    static QImage look(const Host& host, const char* part)
    {
        return host.tool.findChild<QWidget*>(QLatin1String(part))->grab().toImage();
    }

private Q_SLOTS:
    void cleanup()
    {
        qApp->setStyleSheet(QString());
        TestCase::cleanup();
    }

    void rulesForLabelsAndButtons_data()
    {
        QTest::addColumn<QString>("properties");
        QTest::addColumn<bool>("ofTheApplication");
        const struct
        {
            const char* name;
            const char* properties;
        } rules[] = {
            {"colours", "color: red; background-color: yellow;"},
            {"background", "background: qlineargradient(x1:0, y1:0, x2:0, y2:1, stop:0 red, stop:1 blue);"},
            {"border", "border: 3px solid red; border-radius: 9px;"},
            {"box", "padding: 7px; margin: 5px;"},
            {"sides", "padding-left: 30px; margin-top: 5px; border-left: 4px dotted red;"},
            {"least size", "min-width: 200px; min-height: 60px;"},
            {"largest size", "max-width: 20px; max-height: 9px;"},
            {"size", "width: 200px; height: 60px;"},
            {"alignment", "text-align: left;"},
            {"outline", "outline: 2px solid red;"},
        };
        for (const bool ofTheApplication : {false, true}) {
            for (const auto& rule : rules)
                QTest::addRow("%s, %s", rule.name, ofTheApplication ? "application" : "window")
                    << QString::fromLatin1(rule.properties) << ofTheApplication;
        }
    }

    void rulesForLabelsAndButtons()
    {
        QFETCH(QString, properties);
        QFETCH(bool, ofTheApplication);
        const QString sheet = QStringLiteral("QLabel, QPushButton { %1 } QLabel:disabled { %1 } "
                                             "QPushButton:focus { %1 } QPushButton:checked { %1 }")
                                  .arg(properties);
        Host host;
        const QImage panels = look(host, "scrollWidget");
        const QImage buttons = look(host, "saveWidget");
        if (ofTheApplication)
            qApp->setStyleSheet(sheet);
        else
            host.window.setStyleSheet(sheet);
        VD_COMPARE_IMAGES(look(host, "scrollWidget"), panels);
        VD_COMPARE_IMAGES(look(host, "saveWidget"), buttons);
    }
};

VD_TEST_MAIN(TestHostSheet)
#include "tst_hostsheet.moc"

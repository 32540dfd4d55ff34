#include "desktheme.h"

#include "desksettings.h"

#include <theme.h>
#include <theming.h>

using namespace vardeno::testcharttools;

namespace DeskTheme {

namespace {

const QString lightTheme = QStringLiteral("light");
const QString themeKey = QStringLiteral("theme");

} // namespace

void apply()
{
    if (chosen() != lightTheme)
        return; // that of the library
    QSettings file(QStringLiteral(":/chartdesk/light.testcharttoolstheme"), QSettings::IniFormat);
    auto* theme = new Theme(QStringLiteral("chartdesk.light"));
    theme->readSettings(file);
    Theme::setCurrentTheme(theme);
    Theming::themeValues(); // asked for now, they stay
}

QString chosen()
{
    return deskSettings().value(themeKey).toString() == lightTheme ? lightTheme : QStringLiteral("dark");
}

void choose(const QString& name)
{
    deskSettings().setValue(themeKey, name);
}

} // namespace DeskTheme

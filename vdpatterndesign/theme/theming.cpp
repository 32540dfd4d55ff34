#include "theming.h"

#include "support/chartlog.h"
#include "theme.h"

#include <QColor>
#include <QCoreApplication>
#include <QDebug>
#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>

#include <functional>

namespace vardeno::testcharttools {

namespace {

/// A kind of placeholder: "prefix" key "end".
struct Placeholder
{
    QString prefix;
    QString end;            ///< stays in the sheet
    bool afterReplacements; ///< whether the search goes on behind the place of the last one
    std::function<QString(const QString& key)> value;

    QRegularExpression pattern() const
    {
        return QRegularExpression(QRegularExpression::escape(prefix) + QStringLiteral("([\\w\\p{M}]+)") +
                                      QRegularExpression::escape(end),
                                  QRegularExpression::UseUnicodePropertiesOption);
    }
};

/// Replaces each once, and each that a value brings in with it; a value that brings itself in would never
/// come to an end, so there is a limit to their number.
QString replaced(QString css, const Placeholder& placeholder)
{
    const QRegularExpression pattern = placeholder.pattern();
    int left = css.count(placeholder.prefix) + Theming::themeValues().size();
    QRegularExpressionMatch match = pattern.match(css);
    while (match.hasMatch() && left-- > 0) {
        const QString key = match.captured(1);
        const int begin = match.capturedStart();
        const int length = placeholder.prefix.size() + key.size();
        css.replace(begin, length, placeholder.value(key));
        match = pattern.match(css, placeholder.afterReplacements ? qMin(begin + length, css.size()) : 0);
    }
    if (match.hasMatch())
        qWarning() << Q_FUNC_INFO << "a theme value holds a placeholder of itself:" << match.captured();
    return css;
}

/// Of a colour that the theme does not have there is no text.
QString cssColor(const QString& key)
{
    const QVariant value = Theming::themeValues().value(key);
    if (value.userType() == QMetaType::QColor && !value.value<QColor>().isValid())
        return {};
    return value.toString();
}

QString cssImage(const QString& key)
{
    QString path = Theming::themeValues().value(key).toString();
    if (!path.startsWith(QLatin1String(":/")))
        path = Theming::resolveThemePath(path);
    if (!QFileInfo::exists(path))
        qCDebug(chartLog).noquote().nospace()
            << Q_FUNC_INFO << " " << key << "\t" << path << " is not exist!";
    return path;
}

QString cssInteger(const QString& key)
{
    return Theming::themeValues().value(key).toString() + QLatin1String("px");
}

} // namespace

QString Theming::replaceCssColors(const QString& css)
{
    return replaced(css,
                    {QStringLiteral("testcharttools.theme.color."), QStringLiteral(";"), false, cssColor});
}

QString Theming::replaceCssImages(const QString& css)
{
    return replaced(css, {QStringLiteral("testcharttools.theme.image."), QString(), true, cssImage});
}

QString Theming::replaceCssIntegers(const QString& css)
{
    return replaced(
        css, {QStringLiteral("testcharttools.theme.integer."), QStringLiteral(";"), false, cssInteger});
}

const QVariantMap& Theming::themeValues()
{
    static QVariantMap values;
    if (values.isEmpty() && Theme::currentTheme())
        values = Theme::currentTheme()->values();
    return values;
}

QString Theming::resolveThemePath(QString path)
{
    const int slash = path.indexOf(QLatin1Char('/'));
    if (slash == 0 || slash == 1)
        path.remove(0, slash + 1);
    return QDir::cleanPath(QCoreApplication::applicationDirPath() + QLatin1Char('/') + path);
}

} // namespace vardeno::testcharttools

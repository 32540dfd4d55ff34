#include "theme.h"

#include "support/chartlog.h"
#include "support/safesettings.h"

#include <QDebug>
#include <QMetaEnum>
#include <QPointer>
#include <QSettings>

#include <algorithm>
#include <vector>

namespace vardeno::testcharttools {

namespace {

QPointer<Theme>& current()
{
    static QPointer<Theme> theme;
    return theme;
}

template <typename Enum>
QMetaEnum keysOf()
{
    return QMetaEnum::fromType<Enum>();
}

QString unnamed()
{
    return QStringLiteral("unnamed");
}

} // namespace

class Theme::Impl
{
public:
    void readName(const QSettings& settings);
    // `caller` warns of keys that are not there; null does not.
    void readColors(const Theme& theme, QSettings& settings, const char* caller);
    void readImageFiles(QSettings& settings, const char* caller);
    void readIntegers(QSettings& settings, const char* caller);

    QString id;
    QString fileName;
    QString displayName;
    std::vector<QPair<QColor, QString>> colors;
    QMap<QString, QString> imageFiles;
    std::vector<int> integers;
};

void Theme::Impl::readName(const QSettings& settings)
{
    const QString key = QStringLiteral("ThemeName");
    if (settings.contains(key))
        displayName = settings.value(key, unnamed()).toStringList().join(QStringLiteral(", "));
    else if (displayName.isEmpty())
        displayName = unnamed();
}

void Theme::Impl::readColors(const Theme& theme, QSettings& settings, const char* caller)
{
    settings.beginGroup(QStringLiteral("Colors"));
    const QMetaEnum keys = keysOf<Color>();
    for (int i = 0; i < keys.keyCount(); ++i) {
        const QString key = QLatin1String(keys.key(i));
        if (settings.contains(key))
            colors[std::size_t(i)] = theme.readNamedColor(settings.value(key).toString());
        else if (caller)
            qCWarning(themeLog).noquote().nospace() << caller << " Theme Color " << key << " is not set.";
    }
    settings.endGroup();
}

void Theme::Impl::readImageFiles(QSettings& settings, const char* caller)
{
    settings.beginGroup(QStringLiteral("ImageFiles"));
    const QStringList keys = settings.allKeys();
    for (const QString& key : keys) {
        if (settings.contains(key))
            imageFiles.insert(key, settings.value(key).toString());
        else if (caller)
            qCWarning(themeLog).noquote().nospace()
                << caller << " Theme image file " << key << " is not set.";
    }
    settings.endGroup();
}

void Theme::Impl::readIntegers(QSettings& settings, const char* caller)
{
    settings.beginGroup(QStringLiteral("Integers"));
    const QMetaEnum keys = keysOf<Integer>();
    for (int i = 0; i < keys.keyCount(); ++i) {
        const QString key = QLatin1String(keys.key(i));
        if (settings.contains(key))
            integers[std::size_t(i)] = settings.value(key).toInt();
        else if (caller)
            qCWarning(themeLog).noquote().nospace()
                << caller << " Theme Interger type " << key << " is not set.";
    }
    settings.endGroup();
}

Theme::Theme(const QString& id, QObject* parent)
    : QObject(parent)
    , d(std::make_unique<Impl>())
{
    d->id = id;
    d->colors.resize(std::size_t(keysOf<Color>().keyCount()));
    d->integers.assign(std::size_t(keysOf<Integer>().keyCount()), -1);
}

Theme::~Theme() = default;

QString Theme::id() const
{
    return d->id;
}

QString Theme::fileName() const
{
    return d->fileName;
}

QString Theme::displayName() const
{
    return d->displayName;
}

void Theme::readSettings(QSettings& settings)
{
    const char* const caller = d->fileName.isEmpty() ? Q_FUNC_INFO : nullptr;
    if (caller)
        d->fileName = settings.fileName();
    SafeSettings safe(settings);
    d->readName(safe.settings());
    d->readColors(*this, safe.settings(), caller);
    d->readImageFiles(safe.settings(), caller);
    d->readIntegers(safe.settings(), caller);
}

QPair<QColor, QString> Theme::readNamedColor(const QString& value) const
{
    bool isNumber = false;
    const qlonglong argb = value.toLongLong(&isNumber, 16);
    if (isNumber)
        return {QColor::fromRgba(QRgb(argb)), QString()};
    qCWarning(themeLog, "%s Color \"%s\" is neither a named color nor a valid color", Q_FUNC_INFO,
              value.toLocal8Bit().constData());
    return {Qt::black, QString()};
}

QColor Theme::color(const QString& name) const
{
    const auto entry = std::find_if(d->colors.begin(), d->colors.end(),
                                    [&name](const auto& color) { return color.second == name; });
    if (entry != d->colors.end())
        return entry->first;
    qCritical() << Q_FUNC_INFO << "Not find Color type" << name;
    return Qt::black;
}

QVariantMap Theme::values() const
{
    QVariantMap values;
    const QMetaEnum colorKeys = keysOf<Color>();
    for (int i = 0; i < colorKeys.keyCount(); ++i)
        values.insert(QLatin1String(colorKeys.key(i)), d->colors[std::size_t(i)].first);
    const QMetaEnum integerKeys = keysOf<Integer>();
    for (int i = 0; i < integerKeys.keyCount(); ++i)
        values.insert(QLatin1String(integerKeys.key(i)), d->integers[std::size_t(i)]);
    for (auto file = d->imageFiles.begin(); file != d->imageFiles.end(); ++file)
        values.insert(file.key(), file.value());
    return values;
}

void Theme::setCurrentTheme(Theme* theme)
{
    if (current() == theme)
        return;
    delete current();
    current() = theme;
}

Theme* Theme::currentTheme()
{
    return current();
}

} // namespace vardeno::testcharttools

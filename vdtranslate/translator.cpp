#include "translator.h"

#include <QFile>
#include <QLoggingCategory>
#include <QXmlStreamReader>

namespace vardeno::trans {

namespace {

Q_LOGGING_CATEGORY(lcTranslate, "vardeno.translate", QtWarningMsg)

constexpr qint64 mostBytes = 4LL * 1024 * 1024; ///< of a file; the largest of a chart's has a fiftieth

QString normalised(const QString& language)
{
    return QString(language).replace(QLatin1Char('-'), QLatin1Char('_'));
}

/// One string per text; U+001F cannot occur in an XML 1.0 file, so no two texts share a key.
QString lookupKey(const QString& qualifiedContext, const QString& source)
{
    return qualifiedContext + QChar(0x1f) + source;
}

/// Reads one `.ts` document.
class TsReader
{
public:
    explicit TsReader(QIODevice* device)
        : m_xml(device)
    {
    }

    /// What is wrong with the document; empty when it was read.
    QString read()
    {
        if (!m_xml.readNextStartElement() || m_xml.name() != QLatin1String("TS"))
            return QStringLiteral("it is no .ts file");
        language = normalised(m_xml.attributes().value(QLatin1String("language")).toString());
        while (m_xml.readNextStartElement()) {
            if (m_xml.name() == QLatin1String("context"))
                readContext();
            else
                m_xml.skipCurrentElement();
        }
        while (!m_xml.atEnd())
            m_xml.readNext(); // what follows the root element must be well-formed as well
        if (m_xml.hasError())
            return QStringLiteral("line %1: %2").arg(m_xml.lineNumber()).arg(m_xml.errorString());
        return language.isEmpty() ? QStringLiteral("it names no language") : QString();
    }

    QString language;
    QHash<QString, QString> texts;

private:
    void readContext()
    {
        QString name;
        while (m_xml.readNextStartElement()) {
            if (m_xml.name() == QLatin1String("name"))
                name = readText();
            else if (m_xml.name() == QLatin1String("message"))
                readMessage(name);
            else
                m_xml.skipCurrentElement();
        }
    }

    void readMessage(const QString& context)
    {
        QString source;
        QString translation;
        while (m_xml.readNextStartElement()) {
            if (m_xml.name() == QLatin1String("source"))
                source = readText();
            else if (m_xml.name() == QLatin1String("translation"))
                translation = readTranslation();
            else
                m_xml.skipCurrentElement();
        }
        if (!translation.isEmpty())
            texts.insert(lookupKey(context, source), translation);
    }

    QString readTranslation()
    {
        const QString type = m_xml.attributes().value(QLatin1String("type")).toString();
        const QString text = readText();
        const bool retired = type == QLatin1String("obsolete") || type == QLatin1String("vanished");
        return retired ? QString() : text;
    }

    /// The text of the current element and of those in it. Qt's own function calls itself for each of them,
    /// and a hostile file is nested deeply enough to exhaust the stack.
    QString readText()
    {
        QString text;
        for (int depth = 1; depth > 0 && !m_xml.atEnd();) {
            switch (m_xml.readNext()) {
            case QXmlStreamReader::StartElement:
                ++depth;
                break;
            case QXmlStreamReader::EndElement:
                --depth;
                break;
            default:
                if (m_xml.isCharacters())
                    text += m_xml.text();
            }
        }
        return text;
    }

    QXmlStreamReader m_xml;
};

} // namespace

Translator::Translator() = default;
Translator::~Translator() = default;

bool Translator::load(const QString& file)
{
    QFile device(file);
    TsReader reader(&device);
    QString problem = device.open(QIODevice::ReadOnly) ? QString() : device.errorString();
    if (problem.isEmpty() && device.size() > mostBytes)
        problem = QStringLiteral("%1 bytes are more than %2").arg(device.size()).arg(mostBytes);
    if (problem.isEmpty())
        problem = reader.read();
    if (!problem.isEmpty()) {
        qCWarning(lcTranslate).noquote() << file << "is not read:" << problem;
        return false;
    }
    Texts& texts = m_languages[reader.language];
    for (auto it = reader.texts.cbegin(); it != reader.texts.cend(); ++it)
        texts.insert(it.key(), it.value());
    return true;
}

void Translator::switchLanguage(const QString& language)
{
    m_language = normalised(language);
}

QString Translator::language() const
{
    return m_language;
}

QString Translator::text(const QString& module, const QString& context, const QString& source) const
{
    const auto texts = m_languages.constFind(m_language);
    if (texts == m_languages.cend())
        return source;
    const QString qualified = module + QLatin1String("::") + context;
    const auto found = texts->constFind(lookupKey(qualified, source));
    if (found != texts->cend())
        return *found;
    qCDebug(lcTranslate).noquote() << m_language << "lacks" << qualified << source;
    return source;
}

QString translate(const Translator& translator, const QString& module, const QString& context,
                  const QString& source)
{
    return translator.text(module, context, source);
}

} // namespace vardeno::trans

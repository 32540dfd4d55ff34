#pragma once

#include <translatemanager1.h>

#include <QFile>
#include <QMap>
#include <QTemporaryDir>
#include <QXmlStreamWriter>

// Header only: the test support is not linked with the library.

using Texts = QMap<QString, QString>; ///< source text to translation

/// A language file that gives the editor these texts.
inline QByteArray languageFile(const QString& language, const Texts& texts)
{
    QByteArray document;
    QXmlStreamWriter xml(&document);
    xml.writeStartDocument();
    xml.writeStartElement(QStringLiteral("TS"));
    xml.writeAttribute(QStringLiteral("language"), language);
    xml.writeStartElement(QStringLiteral("context"));
    xml.writeTextElement(QStringLiteral("name"), QStringLiteral("TestChartTools::Widget"));
    for (auto text = texts.cbegin(); text != texts.cend(); ++text) {
        xml.writeStartElement(QStringLiteral("message"));
        xml.writeTextElement(QStringLiteral("source"), text.key());
        xml.writeTextElement(QStringLiteral("translation"), text.value());
        xml.writeEndElement();
    }
    xml.writeEndDocument();
    return document;
}

/// Makes a language current that has these texts and no others.
inline bool speak(const Texts& texts)
{
    static int languages = 0;
    const QString language = QStringLiteral("test_%1").arg(++languages);
    const QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("texts.ts")));
    if (!file.open(QIODevice::WriteOnly))
        return false;
    file.write(languageFile(language, texts));
    file.close();
    TranslateManager1& manager = TranslateManager1::instance();
    const bool loaded = manager.translator().load(file.fileName());
    manager.switchLanguage(language);
    return loaded;
}

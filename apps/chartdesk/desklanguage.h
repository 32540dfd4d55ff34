#pragma once

#include <QLocale>
#include <QTranslator>

/// The locale of the dates in a window whose language is `code`: the system's where it is of that language.
QLocale localeOf(const QString& code);

/// The toolkit's own texts, those of its file dialogs for one, in the language of the window.
class ToolkitTexts : public QTranslator
{
    Q_OBJECT

public:
    explicit ToolkitTexts(QObject* parent = nullptr);
    ~ToolkitTexts() override;

    void switchLanguage(const QString& code);

    bool isEmpty() const override { return false; }
    /// "Cancel" is the word that stands on the editor's button.
    QString translate(const char* context, const char* sourceText, const char* disambiguation,
                      int n) const override;
};

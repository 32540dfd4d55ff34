#include "languagemenu.h"

#include "hosttext.h"
#include "languages.h"

#include <QActionGroup>

LanguageMenu::LanguageMenu(QWidget* parent)
    : QMenu(parent)
    , m_choices(new QActionGroup(this))
{
    for (const Language& language : languages()) {
        QAction* choice = m_choices->addAction(language.name);
        choice->setCheckable(true);
        choice->setData(language.code);
        addAction(choice);
    }
    connect(m_choices, &QActionGroup::triggered, this,
            [this](const QAction* choice) { Q_EMIT chosen(choice->data().toString()); });
}

void LanguageMenu::retranslate()
{
    setTitle(hostText(QStringLiteral("Language")));
}

void LanguageMenu::setCurrent(const QString& code)
{
    const QList<QAction*> choices = m_choices->actions();
    for (QAction* choice : choices)
        choice->setChecked(choice->data() == code);
}

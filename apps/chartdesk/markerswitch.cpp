#include "markerswitch.h"

#include "editsession.h"
#include "hosttext.h"

#include <cabinetmarkers.h>

using namespace vardeno::testcharttools;

MarkerSwitch::MarkerSwitch(EditSession* session, QObject* parent)
    : QAction(parent)
    , m_session(session)
{
    setObjectName(QStringLiteral("markerSwitch"));
    setCheckable(true);
    setShortcut(Qt::CTRL + Qt::Key_M);
    connect(this, &QAction::triggered, this, &MarkerSwitch::change);
}

void MarkerSwitch::update()
{
    setEnabled(m_session->isOpen());
    setChecked(m_session->hasMarkers());
}

void MarkerSwitch::retranslate()
{
    setText(hostText(QStringLiteral("Coded markers")));
}

void MarkerSwitch::change(bool shown)
{
    m_session->setMarkers(shown);
    if (shown && cabinetMarkers(m_session->record()).empty())
        Q_EMIT noted(hostText(QStringLiteral("The cabinets have no room for markers.")));
}

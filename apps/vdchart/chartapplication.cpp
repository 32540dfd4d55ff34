#include "chartapplication.h"

#include "chartfont.h"

namespace {

// The application refers to them as long as it lives.
int programArgumentCount = 1;
char programName[] = "vdchart";
char* programArguments[] = {programName, nullptr};

} // namespace

ChartApplication::ChartApplication()
    : QGuiApplication(programArgumentCount, programArguments)
{
    setFont(chartFont());
}

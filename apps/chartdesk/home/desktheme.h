#pragma once

#include <QString>

/// The themes of the desk. An editor's colours are those of the first theme of the process, so that another
/// one is chosen for the next start.
namespace DeskTheme {

/// Makes the chosen theme the one of the process; before the first editor. One that the installation has
/// beside its programs wins over the dark one.
void apply();

/// "dark" or "light".
QString chosen();
void choose(const QString& name);

} // namespace DeskTheme

#pragma once

#include <QByteArray>

#include <vector>

struct Arguments;
struct PlannedPicture;

/// In hexadecimal digits the hash of all that a picture is made of: the record with its changes, the picture
/// of its logo, language, format and version of the program.
QByteArray sourceHash(const PlannedPicture& planned, const Arguments& arguments);

/// Marks those of the plan that the manifest in the folder of the batch proves: made of the same, and the
/// file is as it was written. Throws Failure for a manifest that is none; where there is none, none is
/// proved.
void markProven(std::vector<PlannedPicture>& plan, const Arguments& arguments);

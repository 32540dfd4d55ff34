#pragma once

#include "chartinput.h"
#include "exitcode.h"
#include "manifest.h"
#include "walls.h"

#include <vector>

struct Arguments;

/// A picture that a batch is to make, and what it is to show.
struct PlannedPicture
{
    BatchPicture picture;
    ChartInput chart;
    ExitCode code = ExitCode::Good; ///< of the picture's problem, if it has one

    void fail(const Failure& failure)
    {
        code = failure.code;
        picture.problem = failure.message;
    }
};

/// The pictures of every record for every wall; one wall without a name stands for the records as they are.
/// What is wrong with a record is the problem of its pictures. With `arguments.resume` those that are there
/// already are marked as kept. Throws Failure where two pictures would have
/// the same name, or a file would be written over another one that the batch reads or writes.
std::vector<PlannedPicture> planBatch(const Arguments& arguments, const std::vector<Wall>& walls);

/// `file` in the folder of the batch.
QString batchPath(const Arguments& arguments, const QString& file);

/// The name of its manifest.
constexpr char manifestName[] = "manifest.json";

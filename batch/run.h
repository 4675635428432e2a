#pragma once

#include "batch/job.h"
#include "batch/output.h"
#include "batch/progress.h"
#include "batch/rows.h"
#include "batch/rows_input.h"

namespace norvane {

/// Calculates all rows of the input on so many threads and writes them in their order. Each thread
/// takes a block of rows, calculates it, and waits for its turn to write, so that memory holds as
/// many blocks as there are threads. Throws what any of them threw first.
Report Run(RowsInput& input, const Job& job, Output& output, Progress& progress, int threads,
           bool write_header);

}  // namespace norvane

#pragma once

#include "gridModel.h"

namespace workspace {

/// Tells of a row of the list of jobs what its numbers mean, as far as it is known: client, type, unit and rate, time,
/// and what an hour of it earned. Does not throw.
QString describeJob(const GridModel& jobs, int row);

} // namespace workspace

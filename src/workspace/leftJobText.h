#pragma once

#include "panelContent.h"
#include "storedJob.h"

namespace workspace {

/// What has become of a job since it was left.
enum class Fate { Unchanged, Saved, Deleted };

/// Compares with the job as it is stored now. That it was marked as submitted is no change: the panel can go on.
Fate findFate(const PanelContent& content, const std::optional<StoredJob>& stored);

/// Tells of a job that was left: which one, what is on its clock, and whether one can go on with it.
QString leftJobText(const PanelContent& content, Fate fate);

} // namespace workspace

#pragma once

#include <QString>

struct AbsentCamera;
struct PlanEntry;
struct SaveOrders;
struct SaveOutcome;
struct SavePlan;

/// What is told of a save, in the user's language; plain text.
///
/// One line of what became of a camera.
QString outcomeText(const SaveOutcome& outcome, const SaveOrders& orders);
/// Why a camera's last recording is not saved.
QString absentText(const AbsentCamera& camera);
/// Why a camera is left out of a save whose plan has such an entry.
QString leftOutText(const PlanEntry& entry);
/// An entry of a plan, and one of its tracks.
QString entryText(const PlanEntry& entry);
QString plannedText(const SavePlan& plan, std::size_t track);

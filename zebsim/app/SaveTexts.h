#pragma once

#include <QString>

struct AbsentCamera;
struct SaveOrders;
struct SaveOutcome;
struct SaveRefusal;

/// What is told of a save, in the user's language; plain text.
///
/// One line of what became of a camera.
QString outcomeText(const SaveOutcome& outcome, const SaveOrders& orders);
/// Why a camera's last recording is not saved.
QString absentText(const AbsentCamera& camera);
/// Why nothing was saved.
QString refusalText(const SaveRefusal& refusal, const SaveOrders& orders);

#pragma once

#include <QString>

struct SaveOrders;
struct SaveOutcome;
struct SaveRefusal;

/// What is told of a save, in the user's language; plain text.
///
/// One line of what became of a camera.
QString outcomeText(const SaveOutcome& outcome, const SaveOrders& orders);
/// Why nothing was saved.
QString refusalText(const SaveRefusal& refusal, const SaveOrders& orders);

#pragma once

class Measurements;

/// Measures and prints the table of docs/performance.md, in Markdown. Throws `std::runtime_error` when a measurement
/// fails.
void printFigures(Measurements& measurements);

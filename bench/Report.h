#pragma once

class Measurements;

/// Takes what the sections of the report tell, and prints them. Answers whether everything held its limit. Throws
/// `std::runtime_error` when a measurement fails.
bool printReport(Measurements& measurements);

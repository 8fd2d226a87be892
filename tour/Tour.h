#pragma once

class Hand;

/// Walks through the program from the main menu to its end, in English and then in Metric, and takes a
/// picture at each station. Runs beside the program, on a thread of its own.
void walkThroughProgram(Hand& hand);

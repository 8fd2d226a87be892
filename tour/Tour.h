#pragma once

class Hand;

/// Walks through the program from the main menu to its end, in English and then in Metric, and takes a
/// picture at each step. Runs on its own thread beside the program.
void WalkThroughProgram(Hand& hand);

#pragma once

/// What the screens ask of the shell above them; shell/ implements it.

/// Shows the main menu, or brings it to the front.
void ShowMainForm();

/// Shows the about box, and returns when it is closed.
void ShowAbout();

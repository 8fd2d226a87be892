#pragma once

/// What the screens need from the shell. Implemented in shell/.

/// Shows the main menu, or brings it to the front.
void ShowMainForm();

/// Shows the about box and returns when it is closed.
void ShowAbout();

#pragma once

#include "tests/platform/forms/TestForms.h"

using namespace forms;

class Buttons : public FormsTest
{
protected:
    static FirstScreen& showRecordingScreen()
    {
        FirstScreen& screen = showFirstScreen();
        screen.btnFirst.onClick(Recorder("First"));
        screen.btnSecond.onClick(Recorder("Second"));
        return screen;
    }

    static FirstScreen& showWithDefault()
    {
        FirstScreen& screen = showRecordingScreen();
        screen.setDefaultButton(screen.btnFirst);
        screen.txtFirst.onKeyPress([](int& key) { calls.push_back("key " + std::to_string(key)); });
        screen.txtFirst.takeFocus();
        return screen;
    }
};

#pragma once

#include "tests/platform/forms/TestForms.h"

#include <QTest>
#include <QWindow>

using namespace forms;

class ModalForm : public FormsTest
{
protected:
    /// A first screen whose first button shows the first dialog and waits for it.
    static FirstScreen& showCaller()
    {
        FirstScreen& caller = showFirstScreen();
        caller.btnFirst.onClick([&caller] {
            calls.push_back("before");
            form<FirstDialog>().ShowModal();
            calls.push_back("after");
            caller.txtThird.setText("the caller goes on");
        });
        return caller;
    }

    /// A mouse click as the windowing system delivers it: a blocked window doesn't receive it.
    static void clickThroughTheSystem(Control& control)
    {
        QWidget* const target = control.widget();
        const QPoint place = target->mapTo(target->window(), target->rect().center());
        QTest::mouseClick(target->window()->windowHandle(), Qt::LeftButton, Qt::NoModifier, place);
    }
};

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/forms/forms.h"
#include "shared/numbered_screen.h"

/// What the menus have in common from which one goes on with an option: their controls and how they look.
class OptionMenu : public NumberedScreen {
public:
    forms::Label lblHead{*this, "lblHead"};
    forms::Label lblHead2{*this, "lblHead2"};
    forms::Label lblHead3{*this, "lblHead3"};
    forms::ControlArray<forms::OptionButton, 3> optEdit{*this, "optEdit"};
    forms::CommandButton cmdUpdate{*this, "cmdUpdate"};
    forms::CommandButton cmdCancel{*this, "cmdCancel"};
    forms::Label lblSelIn{*this, "lblSelIn"};
    forms::Label lblCopyright{*this, "lblCopyright"};

protected:
    struct OptionLook {
        const char* caption;
        const char* icon;
        const char* toolTip;
    };

    struct MenuLook {
        const char* heading;
        OptionLook options[3];
        const char* tipOfUpdate;
        const char* tipOfCancel;
        int helpNumber; ///< 0: it is given later
    };

    OptionMenu(const QString& name, int number, const MenuLook& look);

private:
    void layOut(const MenuLook& look);
};

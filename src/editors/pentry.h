#pragma once

#include "editors/recordeditor.h"

namespace brindor {

// The people, one at a time.
struct PEntry : RecordEditor<PersonFamily> {
    PEntry();

    toolkit::Label factionlabel;
    toolkit::Combo cbofaction;
    toolkit::Label occupationlabel;
    toolkit::Combo cbooccupation;

    std::int16_t curfaction = 0; // Catalogue indices: of the record shown, or of the line picked
    std::int16_t curoccupation = 0;
};

// Shows the person at curperson and returns when the screen has closed.
void showpeople();

} // namespace brindor

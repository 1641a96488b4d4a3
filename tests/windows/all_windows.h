// The program and all its windows, whether something opens them now or not.
#pragma once

#include "panels/form11.h"
#include "panels/form5.h"
#include "panels/form6.h"
#include "panels/form7.h"
#include "panels/form8.h"
#include "support/program.h"

#include <vector>

namespace pixano::test {

class Accessibility : public Program {
  protected:
    Accessibility() { Open("a.bmp", Varied(9, 7)); }

    std::vector<QWidget*> Windows()
    {
        return {&session.form1, &session.form2, &session.form4, &session.form9, &session.form10,
                &form5,         &form6,         &form7,         &form8,         &form11};
    }

    Form5 form5;
    Form6 form6;
    Form7 form7;
    Subtraction subtraction;
    Form8 form8{subtraction};
    Form11 form11{"Vetro", session.form10};
};

}  // namespace pixano::test

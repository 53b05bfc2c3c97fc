#include "quiz/result.h"

#include "questions/question.h"
#include "toolkit/operations.h"

namespace brindor {

void showresult(Showscor& showscor, const std::string& heading, toolkit::Screen& quizscreen)
{
    showscor.scoreCaption();
    toolkit::settext(showscor.label1, heading + typenames[static_cast<std::size_t>(qtype)]);
    toolkit::showmodal(showscor);
    toolkit::closescreen(quizscreen);
}

} // namespace brindor

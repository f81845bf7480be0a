#include "base/Ui.h"

namespace vardena {

void Halt(const std::string& why) { throw ProgramHalt(why); }

int RecordingUi::MsgBox(std::string_view prompt, int style, std::string_view title)
{
    boxes.push_back({std::string(prompt), style, std::string(title)});
    const int buttons = style & 7;
    if (buttons == mb::OkOnly)
        return mb::Ok;
    if (!answers.empty()) {
        int a = answers.front();
        answers.erase(answers.begin());
        return a;
    }
    return defaultAnswer;
}

bool RecordingUi::ErrorFrm(std::string_view origin, int number, std::string_view description)
{
    errors.push_back({std::string(origin), number, std::string(description)});
    if (retries > 0) {
        --retries;
        return true;
    }
    return false;
}

}  // namespace vardena

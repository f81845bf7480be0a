#pragma once
// The ways the core talks to a person: message boxes, the error window and halts.
// The command-line tool, the desktop program and the tests each answer them their own way.

#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace vardena {

// Message box styles and answers, with the values of the original run time so that
// handlers can compare them as they always did.
namespace mb {
inline constexpr int OkOnly = 0;
inline constexpr int OkCancel = 1;
inline constexpr int YesNoCancel = 3;
inline constexpr int YesNo = 4;
inline constexpr int Critical = 16;
inline constexpr int Question = 32;
inline constexpr int Exclamation = 48;
inline constexpr int Information = 64;

inline constexpr int Ok = 1;
inline constexpr int Cancel = 2;
inline constexpr int Retry = 4;
inline constexpr int Yes = 6;
inline constexpr int No = 7;
}  // namespace mb

// Thrown when the program must end: an internal impossibility after its box, or an
// error-window answer other than "Reintentar". Whoever owns the run catches it,
// reports `what()` and stops; nothing after the throw point runs.
class ProgramHalt : public std::runtime_error {
public:
    explicit ProgramHalt(const std::string& why) : std::runtime_error(why) {}
};

class Ui {
public:
    virtual ~Ui() = default;
    // A message box: returns one of the mb:: answers.
    virtual int MsgBox(std::string_view prompt, int style, std::string_view title) = 0;
    // The error window of a handler: `origin` is the handler's label. Returns true for
    // "Reintentar" (the failing step runs again); false ends the program.
    virtual bool ErrorFrm(std::string_view origin, int number, std::string_view description) = 0;
};

// Ends the program after an internal impossibility.
[[noreturn]] void Halt(const std::string& why);

// A Ui that answers every box with a fixed answer and every error window with "Salir",
// keeping what it was shown. Used by the command line (which prints what it keeps) and tests.
class RecordingUi : public Ui {
public:
    struct Box {
        std::string prompt;
        int style;
        std::string title;
    };
    struct ErrorShown {
        std::string origin;
        int number;
        std::string description;
    };

    int MsgBox(std::string_view prompt, int style, std::string_view title) override;
    bool ErrorFrm(std::string_view origin, int number, std::string_view description) override;

    // Answers for boxes that ask (yes/no, ok/cancel), taken in turn; when none are left,
    // `defaultAnswer` is used.
    std::vector<int> answers;
    int defaultAnswer = mb::Yes;
    // How many times the error window answers "Reintentar" before it answers "Salir".
    int retries = 0;

    std::vector<Box> boxes;
    std::vector<ErrorShown> errors;
};

}  // namespace vardena

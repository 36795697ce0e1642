// Presses a button of another process as screen readers and test tools do, by sending it a message:
// "Presser WINDOW ID", the dialog's window as a decimal number. Succeeds when the message is answered in
// time.
#include <cstdlib>

#include <windows.h>

namespace
{

constexpr UINT kPatience = 5000; // milliseconds

bool Press(HWND dialog, int id)
{
    DWORD_PTR result = 0;
    return SendMessageTimeoutW(GetDlgItem(dialog, id), BM_CLICK, 0, 0, SMTO_NORMAL, kPatience, &result) != 0;
}

} // namespace

int main(int argumentCount, char** arguments)
{
    if (argumentCount != 3)
    {
        return EXIT_FAILURE;
    }
    // Windows have the same number in every process, of 32 bits in 64-bit ones too.
    const auto dialog = static_cast<ULONG_PTR>(std::strtoul(arguments[1], nullptr, 10));
    return Press(reinterpret_cast<HWND>(dialog), std::atoi(arguments[2])) ? EXIT_SUCCESS : EXIT_FAILURE;
}

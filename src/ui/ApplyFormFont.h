// Every dialog is laid out in the font of the component's shared state: the font is written into the dialog
// template before the dialog is created, so that the dialog units, and with them all positions and sizes,
// follow the font and the screen's resolution, and every control gets that font.
#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <vector>

namespace ui
{

struct FormFont
{
    std::wstring Name;
    long Size = 0; // points
};

// The font of the shared state; the platform's dialog font where its name or size is unusable.
FormFont FontOfForms();

// A copy of an extended dialog template (DIALOGEX with a font) that is laid out in this font. Throws
// std::invalid_argument for anything else.
std::vector<std::byte> ApplyFormFont(std::span<const std::byte> dialogTemplate, const FormFont& font);

} // namespace ui

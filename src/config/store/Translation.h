// Whether, with which program and in which direction a kind of data is exchanged, as the translator dialogs
// show it: one Translation per row of their list, read from T_POutlookSyncParam, edited in memory and written
// on OK.
#pragma once

#include "automation/Recordset.h"
#include "state/SynParameter.h"

#include <optional>
#include <span>
#include <string>
#include <vector>

#include <windows.h>

namespace config
{

struct Direction
{
    long TransType;
    const wchar_t* TransTypePic; // picture key
    UINT Caption;                // resource string
};

// Import, export, both ways.
std::span<const Direction> Directions();
// The direction with this code or picture key; null for any other.
const Direction* FindDirection(long transType);
const Direction* FindDirection(const std::wstring& transTypePic);

// A translator is there unless its column is NULL or says so in words, in any letter case.
bool HasTranslator(const automation::Value& transSource);

struct Translation
{
    std::wstring TransObject; // key
    std::wstring Name;        // in the interface language
    std::wstring TransObjectPic;
    bool Checked = false;
    bool Translator = false;
    long TransType = 0;
    std::wstring TransTypePic;

    // The picture key of the direction arrow; empty for a row that shows none.
    std::wstring Arrow() const { return Checked && Translator ? TransTypePic : std::wstring(); }
};

// The current user's rows; they are created from the templates when there are none. Nothing on failure.
std::optional<std::vector<Translation>> LoadTranslations();

// A check mark set or taken away by the user. A row that had no translator gets the only one there is.
void SetChecked(Translation& row, bool checked);

// From the row to the record that describes it, and back after the record has been edited.
void ApplyTo(state::SynParameter& record, const Translation& row);
void TakeFrom(Translation& row, const state::SynParameter& record);

// The columns that OK writes for the row; without a direction that was neither loaded nor chosen.
std::wstring TranslationSetClause(const Translation& row);

} // namespace config

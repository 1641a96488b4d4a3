#include "document/enabling.h"

#include <algorithm>
#include <initializer_list>

namespace pixano {
namespace {

/// Switches every entry that has one of these needs.
void SwitchAll(const Session& s, std::initializer_list<Needs> needs, bool on)
{
    int position = 0;
    for (const MenuEntry& entry : s.form1.Entries()) {
        if (std::ranges::find(needs, entry.needs) != needs.end())
            s.form1.Control(position).setEnabled(on);
        ++position;
    }
}

}  // namespace

void Disabil(const Session& s)
{
    SwitchAll(s, {Needs::Picture, Needs::History}, false);
}

void Abilita(const Session& s)
{
    SwitchAll(s, {Needs::Picture}, true);
}

// cppcheck-suppress [constParameter, constParameterReference] ; the palette changes
void DisableHistory(Session& s)
{
    SwitchAll(s, {Needs::History}, false);
    s.form10.EnableHistory({.annulla = false, .originale = false, .ripristina = false});
}

}  // namespace pixano

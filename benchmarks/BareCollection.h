// The bare loop of a collection: every record's match keys read once, and nothing made of them. Of the keys
// that are compared second it reads those of the records that have a partner, which no matching gets around.
#pragma once

#include "benchmarks/Sides.h"

namespace benchmarks
{

enum class Ids
{
    PerObject, // a DISPID is asked for at every object anew, as the object model makes a client do
    PerClass,  // asked for at the first item and taken for granted at the others: what a cache could save
};

// Items from a position on have no partner: the host does not know them.
long PartnersAmongItems(long count);

// The rows alone.
void ReadBareRows(const Kind& kind, const exchange::Run& run);

void ReadBare(const Kind& kind, const exchange::Run& run, Ids ids = Ids::PerObject);

} // namespace benchmarks

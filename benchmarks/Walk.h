// The collection of one direction, by the component and by the plain nested walk.
#pragma once

#include "benchmarks/Kinds.h"
#include "exchange/Run.h"

namespace benchmarks
{

// Throw std::runtime_error when the collection fails.
void Collect(const Kind& kind, Direction direction, exchange::Run& run);
void Walk(const Kind& kind, Direction direction, exchange::Run& run);

// What either proposes over the numbered records, half of them with a partner and a rule that takes all.
void FillPending(Direction direction, size_t count, data::Changes& pending);
bool AreEqual(const data::Changes& one, const data::Changes& other);

const char* NameOf(Direction direction);

} // namespace benchmarks

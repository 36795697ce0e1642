// What the apply passes of a run would write, as data: each field of a proposed record as it is and as it
// will be. It walks the kind's own mapping tables with targets that keep the values, and writes nothing.
// Lives as long as the run's list of changes is shown.
#pragma once

#include "data/KeptRow.h"
#include "exchange/Difference.h"
#include "exchange/Kind.h"
#include "exchange/Proposals.h"
#include "state/Remarks.h"

#include <string>
#include <vector>

namespace exchange
{

struct RecordPreview
{
    std::vector<Difference> Fields;
    // Why the record, or a part of it, will not be written.
    std::vector<state::Remark> Remarks{};

    bool IsWritten() const;
};

class Preview
{
  public:
    // The kind and the run outlive the preview; the run's rows and items are open.
    Preview(const Kind& kind, Run& run);

    // The fields at the end of the run, of one side or of both. Throws automation::Error when the record
    // cannot be found.
    RecordPreview Of(const Proposal& proposal);

    // A column of the list of changes, Empty for a record that is gone. Throw automation::Error when the
    // record cannot be read.
    automation::Value NameOf(const Proposal& proposal);
    automation::Value Summary(const Proposal& proposal, SummaryColumn KindPreview::*column);

  private:
    struct Records;

    Records RecordsOf(const Proposal& proposal);
    automation::Object BlankItem();
    void ToOutlookOrBoth(const Proposal& proposal, const automation::Object& item, RecordPreview& preview);
    void ToOutlook(RecordedItem& recorded, const automation::Object& item, RecordPreview& preview);
    void AddHostFields(const std::vector<data::HeldColumn>& columns, data::RecordMode mode,
                       RecordPreview& preview);
    void AddLinkedFields(const LinkSource& source, RecordPreview& preview);
    template<typename OfItem, typename OfRow>
    automation::Value ReadFrom(const Proposal& proposal, OfItem&& ofItem, OfRow&& ofRow);
    bool ToHost(const automation::Object& item, data::RecordMode mode, RecordPreview& preview);

    const Kind& mKind;
    Run& mRun;
    RelationTable mRelationsFromOutlook;
    automation::Object mBlankItem;
};

} // namespace exchange

#pragma once

#include "app/drafts/draft.h"
#include "app/drafts/listeners.h"
#include "editor/window/frmKalco.h"

namespace kalco::app {

/// What a tab shows against the team's record in the image. A record that can't be read has nothing to differ from.
class RecordDraft : public DraftWatch {
protected:
    explicit RecordDraft(frmKalco& form) : form_(form) {}

    /// The differences from the record of the row that is chosen now.
    virtual Draft compare() = 0;
    /// What of the last look's draft the image does not hold now.
    virtual Draft unwritten(const Draft& last) = 0;

    Draft now() final;
    Draft lost(const Draft& last) final;

    /// The events that fill the tab anew.
    void listen(Listeners& listeners, std::initializer_list<Event*> events);

    frmKalco& form_;
};

/// The set-piece takers and the captain of cboSquadra.
class SetPiecesDraft : public RecordDraft {
public:
    SetPiecesDraft(frmKalco& form, Listeners& listeners);

protected:
    Draft compare() override;
    Draft unwritten(const Draft& last) override;

private:
    TeamRow row_{-1};
    std::string wanted_;
};

/// The markers of cboSeqSQ2.
class PitchDraft : public RecordDraft {
public:
    PitchDraft(frmKalco& form, Listeners& listeners);

protected:
    Draft compare() override;
    Draft unwritten(const Draft& last) override;

private:
    struct Place {
        std::string role;
        int x = 0;
        int y = 0;

        bool operator==(const Place&) const = default;
    };
    using Places = std::array<Place, last_marker + 1>;

    Places stored() const;
    Places shown() const;
    void arrange(int module, const Places& wanted);

    TeamRow row_{-1};
    Places wanted_;
};

/// The bars of all teams: they stay when another team is chosen.
class BarsDraft : public RecordDraft {
public:
    BarsDraft(frmKalco& form, Listeners& listeners);

protected:
    Draft compare() override;
    Draft unwritten(const Draft& last) override;

private:
    struct Row {
        int row;
        std::string digits;  ///< What it is to hold.
        std::vector<DraftChange> changes;
    };

    Draft draft_of(const std::vector<Row>& rows);
    void set_bars(const std::vector<Row>& rows);

    std::vector<Row> rows_;
};

/// The shirt numbers of cboSQNum.
class NumbersDraft : public RecordDraft {
public:
    NumbersDraft(frmKalco& form, Listeners& listeners);

protected:
    Draft compare() override;
    Draft unwritten(const Draft& last) override;

private:
    std::vector<std::string> stored() const;
    void set_numbers(const std::vector<std::string>& wanted);

    TeamRow row_{-1};
    std::vector<std::string> wanted_;
};

}  // namespace kalco::app

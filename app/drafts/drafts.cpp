#include "app/drafts/drafts.h"

#include <utility>

namespace kalco::app {

Drafts::Drafts(frmKalco& form)
    : names_(form, listeners_),
      player_(form, listeners_),
      set_pieces_(form, listeners_),
      first_file_(form, first_transfer_side(form), listeners_),
      second_file_(form, second_transfer_side(form), listeners_),
      pitch_(form, listeners_),
      bars_(form, listeners_),
      numbers_(form, listeners_) {
    listeners_.after(form.cmdOpen.click, [this, &form] { other_image_ = !form.ImagePath.empty(); });
}

std::vector<Draft> Drafts::look() {
    std::vector<Draft> dropped;
    // The order in which they can be made again: a team's names before its players.
    for (DraftWatch* watch : std::initializer_list<DraftWatch*>{&names_, &player_, &set_pieces_, &first_file_,
                                                                &second_file_, &pitch_, &bars_, &numbers_}) {
        Draft draft = watch->look();
        if (!draft.empty()) dropped.push_back(std::move(draft));
    }
    // They belong to an image that is not open any more.
    if (std::exchange(other_image_, false)) {
        for (Draft& draft : dropped) draft.make_again = nullptr;
    }
    return dropped;
}

}  // namespace kalco::app

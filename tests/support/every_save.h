#pragma once

#include <functional>
#include <string>
#include <vector>

#include "editor/editor.h"
#include "editor/window/user.h"
#include "support/fake_platform.h"
#include "support/temporary_home.h"

/// Every kind of save in the program, as what a user does before it and the one action that saves.
namespace kalco::test {

/// An editor on any storage.
struct Desk {
    Desk(const TemporaryHome& side_files, StorageOpener opener, const std::string& image)
        : home(side_files),
          editor(platform, std::move(opener)),
          form(editor.form) {
        platform.home = home.path();
        platform.choices.push_back(image);
        user::start(form);
    }
    /// The answer of the next file dialog: a side file with these contents.
    void will_choose(const std::string& name, const std::string& contents) {
        platform.choices.push_back(home.write(name, contents));
    }
    bool told(const std::string& text) const {
        for (const auto& message : platform.messages) {
            if (message.text == text) return true;
        }
        return false;
    }
    /// A message that promises that the bytes are saved.
    bool told_saved() const { return told("Salvataggio effettuato con successo") || told("Nome squadra modificato"); }

    const TemporaryHome& home;
    FakePlatform platform;
    Editor editor;
    frmKalco& form;
};

struct EverySave {
    std::string name;
    std::function<void(Desk&)> prepare;
    std::function<void(Desk&)> save;
    /// The save's error route says nothing when it fails.
    bool fails_silently = false;
    /// It stops on its own and keeps what it has written.
    bool stops = false;
};

const std::vector<EverySave>& every_save();

/// What became of the images of many faults, for the eye.
struct Tally {
    int calls = 0;  ///< At which a fault was tried.
    int faults = 0;
    int old_images = 0;
    int new_images = 0;

    void count(bool is_new) {
        ++faults;
        ++(is_new ? new_images : old_images);
    }
    void print(const char* what) const;
};

}  // namespace kalco::test

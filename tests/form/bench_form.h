#pragma once
#include "form/controls.h"
#include "form/form.h"
#include "form/forms.h"
#include "form/virtual_time.h"

#include <exception>
#include <functional>
#include <string>
#include <vector>

namespace form {

/// A form to try things on: it keeps a diary of what happens to it and of what its handlers throw.
struct BenchForm : Form {
    BenchForm(Forms& forms, std::string name, std::vector<std::string>& pages)
        : Form(forms, std::move(name)), diary(pages) {}
    ~BenchForm() override { diary.push_back(name() + " destroyed"); }
    void load() override { diary.push_back(name() + " load"); }
    void activate() override { diary.push_back(name() + " active"); }
    void unloading() override { diary.push_back(name() + " unloading"); }
    void closeBox() override {}
    void failed(const std::string& procedure, const std::exception& fault) override {
        diary.push_back(procedure + fault.what());
    }

    std::vector<std::string>& diary;
    Group frame{*this, {"frame"}};
    Button button{*this, {"button", &frame}};
    Timer timer{*this, {"timer"}, 100};
    Timer other{*this, {"other"}, 250};
};

/// Time, forms and one bench form that is loaded.
struct Bench {
    std::vector<std::string> diary;
    VirtualTime loop;
    Forms forms{loop};
    BenchForm& form = add("bench");

    BenchForm& add(const std::string& name) {
        forms.add(name, [this, name] { return std::make_unique<BenchForm>(forms, name, diary); });
        return static_cast<BenchForm&>(forms.load(name));
    }
};

}  // namespace form

#pragma once

#include "engine/Failures.h"
#include "engine/controls/ControlCore.h"
#include "platform/Editors.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace Tessellon {

/// The instances of one kind of editor, numbered from 0 without gaps.
template <class Kind, class Control>
class ControlArrayOf : public ControlArray<Kind> {
public:
    ControlArrayOf(ControlSurroundings& surroundings, std::u16string name)
        : surroundings_(surroundings)
        , name_(std::move(name))
    {
        Load(0);
    }

    std::int16_t Count() override { return static_cast<std::int16_t>(instances_.size()); }
    std::shared_ptr<Kind> Item(std::int16_t index) override { return Instance(index); }

    std::shared_ptr<Control> Instance(std::int16_t index)
    {
        if (index < 0 || index >= Count())
            Fail(340, name_);
        return instances_[static_cast<std::size_t>(index)];
    }

    void Load(std::int16_t index) override
    {
        if (index < Count())
            Fail(index < 0 ? 340 : 360, name_);
        if (index > Count())
            Fail(340, name_);
        instances_.push_back(std::make_shared<Control>(surroundings_, InstanceName(index), index));
    }

    /// It can run inside the instance's own event, so whoever holds it keeps a state that is still there.
    void Unload(std::int16_t index) override
    {
        const std::shared_ptr<Control> instance = Instance(index);
        instance->Retire();
        std::erase(instances_, instance);
    }

    [[nodiscard]] const std::vector<std::shared_ptr<Control>>& Instances() const { return instances_; }

private:
    [[nodiscard]] std::u16string InstanceName(std::int16_t index) const
    {
        std::u16string name = name_ + u'(';
        for (const char digit : std::to_string(index))
            name += static_cast<char16_t>(digit);
        return name + u')';
    }

    ControlSurroundings& surroundings_;
    std::u16string name_;
    std::vector<std::shared_ptr<Control>> instances_;
};

} // namespace Tessellon

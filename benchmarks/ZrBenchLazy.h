#pragma once

#include <functional>
#include <memory>

/// A fixture that is made when the first row asks for it and shared by the rows of a family.
template<typename Fixture>
std::function<std::shared_ptr<Fixture>()> zrLazily(std::function<std::shared_ptr<Fixture>()> make)
{
    auto kept = std::make_shared<std::shared_ptr<Fixture>>();
    return [kept, make]() {
        if (!*kept)
            *kept = make();
        return *kept;
    };
}

#include "parts/item_keys.h"

#include "parts/number_text.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <iterator>
#include <utility>

namespace parts {
namespace {

/// Between values that are put together: no text holds it.
constexpr char kSeparator = '\x1f';

/// Numbers that were worked out in another order differ by less, in parts of them.
constexpr double kSameWithin = 1e-9;

/// Tells apart what differs by more than that.
constexpr NumberFormat kAllDigits = {.significantDigits = 12};

/// The numbers of a cell.
std::vector<double*> numbersIn(Cell& cell) {
    if (auto* const number = std::get_if<Number>(&cell)) {
        return {&number->value};
    }
    std::vector<double*> numbers;
    if (auto* const extents = std::get_if<Extents>(&cell)) {
        for (double& value : extents->values) {
            numbers.push_back(&value);
        }
    }
    return numbers;
}

/// Of numbers that are equal the first in order.
std::vector<double> firstOfEqual(std::vector<double> numbers) {
    std::ranges::sort(numbers);
    std::vector<double> first;
    for (std::size_t index = 0; index < numbers.size(); ++index) {
        const double number = numbers[index];
        if (index == 0 || number - numbers[index - 1] > kSameWithin * std::abs(number)) {
            first.push_back(number);
        }
    }
    return first;
}

/// Replaces a number by the first of those that it is equal to.
void stepDown(double& number, const std::vector<double>& steps) {
    const auto above = std::ranges::upper_bound(steps, number);
    number = above == steps.begin() ? number : *std::prev(above);
}

}  // namespace

ItemKeys::ItemKeys(ListContext& context)
    : context_(context),
      values_(context),
      keys_(context.design.components.size()),
      contents_(context.design.components.size()) {
    if (context.request.merging.by == MergeBy::Shape && context.shapes.classOf.empty()) {
        throw RequestError("\"shape\": the shapes of this design cannot be compared");
    }
    if (context.request.merging.by == MergeBy::Columns) {
        findSteps();
    }
}

const std::string& ItemKeys::keyOf(std::size_t component) {
    if (!keys_[component]) {
        keys_[component] = makeKey(component);
    }
    return *keys_[component];
}

std::string ItemKeys::makeKey(std::size_t component) {
    switch (context_.request.merging.by) {
        case MergeBy::PartNumber:
            return context_.numberOf(component);
        case MergeBy::Name:
            return context_.baseNameOf(component);
        case MergeBy::Component:
            return context_.at(component).name + kSeparator + std::to_string(component);
        case MergeBy::Shape: {
            const std::optional<int> shape = context_.shapeOf(component);
            // What has no shape, such as an assembly, is known by its number.
            return shape ? "shape " + std::to_string(*shape)
                         : kSeparator + context_.numberOf(component);
        }
        case MergeBy::Columns:
            break;
    }
    return valuesOf(component);
}

std::string ItemKeys::textOf(std::size_t component) {
    if (context_.request.merging.by == MergeBy::Component) {
        return context_.at(component).name;
    }
    std::string text;
    for (const char each : keyOf(component)) {
        const bool isBetween = each == kSeparator;
        text += isBetween ? text.empty() ? "" : ", " : std::string(1, each);
    }
    return text;
}

PartsRow ItemKeys::rowOf(std::size_t component) const {
    PartsRow row;
    row.component = component;
    row.quantity = context_.tree.quantity(component);
    row.members = {{.component = component, .quantity = row.quantity}};
    return row;
}

void ItemKeys::findSteps() {
    for (const Column& column : context_.request.merging.columns) {
        std::vector<double> numbers;
        for (const std::size_t component : context_.tree.reached()) {
            Cell cell = values_.cell(column, rowOf(component));
            for (const double* const number : numbersIn(cell)) {
                numbers.push_back(*number);
            }
        }
        steps_.push_back(firstOfEqual(std::move(numbers)));
    }
}

std::string ItemKeys::valuesOf(std::size_t component) {
    const PartsRow row = rowOf(component);
    std::string key;
    for (std::size_t index = 0; index < steps_.size(); ++index) {
        // Shown decimals tell nothing apart.
        Column column = context_.request.merging.columns[index];
        column.decimals.reset();
        Cell cell = values_.cell(column, row);
        for (double* const number : numbersIn(cell)) {
            stepDown(*number, steps_[index]);
        }
        key += (index == 0 ? "" : std::string(1, kSeparator)) + cellText(cell, kAllDigits);
    }
    return key;
}

int ItemKeys::contentOf(std::size_t component) {
    if (!contents_[component]) {
        const std::string text = contentText(component);
        const int next = static_cast<int>(contentNumbers_.size());
        contents_[component] = contentNumbers_.try_emplace(text, next).first->second;
    }
    return *contents_[component];
}

std::string ItemKeys::contentText(std::size_t component) {
    std::string text = keyOf(component);
    if (!context_.tree.isOpened(component)) {
        return text;
    }
    text += context_.hasBodies(component) ? std::string(1, kSeparator) + "bodies" : "";
    std::map<int, std::int64_t> inside;
    for (const Line& line : context_.tree.lines(component)) {
        inside[contentOf(line.component)] += line.quantity;
    }
    for (const auto& [content, quantity] : inside) {
        text += kSeparator + std::to_string(quantity) + "*" + std::to_string(content);
    }
    return text;
}

}  // namespace parts

#include "parts/item_keys.h"

#include "parts/number_text.h"

#include <cstdint>

namespace parts {
namespace {

/// Between values that are put together: no text holds it.
constexpr char kSeparator = '\x1f';

}  // namespace

ItemKeys::ItemKeys(ListContext& context)
    : context_(context),
      values_(context),
      keys_(context.design.components.size()),
      contents_(context.design.components.size()) {
    if (context.request.merging.by == MergeBy::Shape && context.shapes.classOf.empty()) {
        throw RequestError("\"shape\": the shapes of this design cannot be compared");
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

std::string ItemKeys::valuesOf(std::size_t component) {
    PartsRow row;
    row.component = component;
    row.quantity = context_.tree.quantity(component);
    row.level = context_.tree.level(component);
    row.path = context_.tree.path(component);
    row.shape = context_.shapeOf(component);
    row.members = {{.component = component, .quantity = row.quantity}};
    std::string key;
    for (const Column& column : context_.request.merging.columns) {
        key += (key.empty() ? "" : std::string(1, kSeparator)) +
               cellText(values_.cell(column, row), {});
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

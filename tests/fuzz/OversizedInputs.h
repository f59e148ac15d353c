#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace fuzz {

/// How an oversized input is made: @p prefix, then @p element as often as there is room, then @p closing as often, then
/// @p suffix. "$n" in an element is its running number.
struct Shape
{
    std::string title;
    std::string prefix;
    std::string element;
    std::string closing;
    std::string suffix;
};

/// One character, or one byte that no text has, over and over.
std::vector<Shape> plainShapes();

/// The shapes of a file: a line each, title, prefix, element, closing and suffix apart by tabs, "\n" a line feed; "#"
/// begins a comment.
std::vector<Shape> shapesOf(const std::string& fileName);

/// The input of that shape, of at most @p size bytes.
std::string inputOf(const Shape& shape, std::size_t size);

} // namespace fuzz

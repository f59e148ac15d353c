#include "fuzz/OversizedInputs.h"

#include <fstream>

namespace fuzz {

namespace {

std::string replaced(std::string text, const std::string& what, const std::string& with)
{
    for (std::size_t at = text.find(what); at != std::string::npos; at = text.find(what, at + with.size()))
        text.replace(at, what.size(), with);
    return text;
}

Shape shapeOf(const std::string& line)
{
    Shape shape;
    std::string* const columns[] = {&shape.title, &shape.prefix, &shape.element, &shape.closing, &shape.suffix};
    std::size_t begin = 0;
    for (std::string* column : columns) {
        const std::size_t end = line.find('\t', begin);
        *column = replaced(line.substr(begin, end - begin), "\\n", "\n");
        if (end == std::string::npos)
            break;
        begin = end + 1;
    }
    return shape;
}

} // namespace

std::vector<Shape> plainShapes()
{
    std::vector<Shape> shapes;
    for (const char character : std::string("+-=^,;:.|/\\\"'#@%&$~[]{}() \t\n09aZ"))
        shapes.push_back({std::string("only ") + character, {}, std::string(1, character), {}, {}});
    shapes.push_back({"only NUL", {}, std::string(1, '\0'), {}, {}});
    shapes.push_back({"only bytes that are no UTF-8", {}, "\xFF", {}, {}});
    shapes.push_back({"only Han", {}, "\xE4\xB8\xAD", {}, {}});
    shapes.push_back({"only characters beyond 16 bits", {}, "\xF0\x9F\x93\x88", {}, {}});
    return shapes;
}

std::vector<Shape> shapesOf(const std::string& fileName)
{
    std::vector<Shape> shapes;
    std::ifstream file(fileName);
    for (std::string line; std::getline(file, line);) {
        if (!line.empty() && line.front() != '#')
            shapes.push_back(shapeOf(line));
    }
    return shapes;
}

std::string inputOf(const Shape& shape, std::size_t size)
{
    const bool isCounted = shape.element.find("$n") != std::string::npos;
    std::string input = shape.prefix;
    std::string element = shape.element;
    std::size_t count = 0;
    for (;; ++count) {
        if (isCounted)
            element = replaced(shape.element, "$n", std::to_string(count));
        const std::size_t tail = (count + 1) * shape.closing.size() + shape.suffix.size();
        if (element.empty() || input.size() + element.size() + tail > size)
            break;
        input += element;
    }
    for (; count > 0 && !shape.closing.empty(); --count)
        input += shape.closing;
    return input + shape.suffix;
}

} // namespace fuzz

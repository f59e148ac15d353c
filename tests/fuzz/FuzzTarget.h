#pragma once

#include <QByteArray>
#include <QString>

#include <cstddef>
#include <cstdint>

/// What libFuzzer, or the plain driver in its place, calls with every input.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

/// What the fuzz targets have in common.
namespace fuzz {

/// Oracles hold several copies of the text that they take apart; inputs that measure the readers' memory are longer.
constexpr std::size_t kLongestChecked = 1 << 16;

/// Makes the application on Qt's offscreen platform, once. What readers log about bad input is formatted and dropped.
void startApplication();

/// The input as it stands in a file.
QByteArray bytesOf(const std::uint8_t* data, std::size_t size);

/// The input as a text: UTF-8, or the 16-bit units behind the mark FF FE, unpaired surrogates included.
QString textOf(const std::uint8_t* data, std::size_t size);

/// A file of its own for each process, written anew for each input.
QString writtenFile(const QString& name, const QByteArray& bytes);

/// Ends the process, as a finding, unless @p holds; says what did not hold.
void require(bool holds, const char* what);

} // namespace fuzz

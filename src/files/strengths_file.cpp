#include "files/strengths_file.h"

#include "canvas/fault.h"
#include "files/value_text.h"

#include <charconv>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <memory>

namespace pixano {
namespace {

namespace fs = std::filesystem;

std::string TextOf(const std::string& path)
{
    std::error_code error;
    const fs::file_status status = fs::symlink_status(path, error);
    if (!fs::exists(status)) throw Fault(FaultKind::FileNotFound, path);
    // Opening a pipe would wait for ever; a link may lead anywhere.
    if (!fs::is_regular_file(status)) throw Fault(FaultKind::FileAccess, path);
    std::ifstream file(path, std::ios::binary);
    constexpr std::streamsize Enough = 4096;  // far more than five numbers take
    std::string text(Enough, '\0');
    if (!file.is_open()) throw Fault(FaultKind::FileAccess, path);
    file.read(text.data(), Enough);
    if (file.bad()) throw Fault(FaultKind::FileAccess, path);
    text.resize(static_cast<std::size_t>(file.gcount()));
    return text;
}

/// `Val`: the number that the text begins with, 0 if none.
double Val(std::string_view text, const std::string& path)
{
    if (text.starts_with('+')) text.remove_prefix(1);
    // Only digits make a number: "inf" and "nan" are words.
    const std::size_t first = text.starts_with('-') ? 1 : 0;
    if (text.find_first_of("0123456789.", first) != first) return 0;
    double number = 0;
    const auto parsed = std::from_chars(text.data(), text.data() + text.size(), number);
    if (parsed.ec == std::errc::result_out_of_range) throw Fault(FaultKind::Overflow, path);
    return parsed.ec == std::errc() ? number : 0;
}

struct CloseFile {
    void operator()(std::FILE* file) const { std::fclose(file); }
};

void WriteNew(const std::string& path, const std::string& text)
{
    const std::unique_ptr<std::FILE, CloseFile> file(std::fopen(path.c_str(), "wbx"));
    if (!file) throw Fault(FaultKind::FileAccess, path);
    const bool written = std::fwrite(text.data(), 1, text.size(), file.get()) == text.size();
    if (!written || std::fflush(file.get()) != 0) throw Fault(FaultKind::DiskFull, path);
}

std::string LineOf(double value)
{
    std::array<char, 512> digits{};  // the largest double has 309 digits before the point
    char* const end =
        std::to_chars(digits.data(), digits.data() + digits.size(), value, std::chars_format::fixed)
            .ptr;
    return std::string(digits.data(), end) + "\r\n";
}

}  // namespace

void LeggiValori(const std::string& path, Strengths& valori)
{
    const std::string text = TextOf(path);
    std::string_view unread = text;
    Strengths read{};
    for (std::size_t i = 1; i < read.size(); ++i) {
        const auto item = TakeItem(unread, true);
        if (!item) throw Fault(FaultKind::InputPastEnd, path);
        read[i] = Val(*item, path);
    }
    valori = read;
}

void SalvaValori(const std::string& path, const Strengths& valori)
{
    std::string text;
    for (std::size_t i = 1; i < valori.size(); ++i)
        text += LineOf(valori[i]);
    const std::string beside = path + "~";
    std::error_code error;
    fs::remove(beside, error);
    try {
        WriteNew(beside, text);
        fs::rename(beside, path, error);
        if (error) throw Fault(FaultKind::FileAccess, path);
    } catch (const Fault&) {
        fs::remove(beside, error);
        throw;
    }
}

}  // namespace pixano

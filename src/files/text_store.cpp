#include "files/text_store.h"

#include "canvas/fault.h"
#include "files/value_text.h"

#include <cstdio>
#include <cstring>
#include <filesystem>
#include <vector>

namespace pixano {
namespace {

namespace fs = std::filesystem;

class Text : public PixelFile::Store {
  public:
    using Window = PixelFile::Store::Window;

    explicit Text(std::string name) : name_(std::move(name)), path_(fs::path(name_)) {}

    Window Create() override
    {
        Close();
        std::error_code error;
        // Whatever bears the name is replaced, not followed: a link or a pipe goes like a file.
        if (!fs::is_directory(fs::symlink_status(path_, error))) fs::remove(path_, error);
        Open("wbx");
        unwritten_ = 0;
        return {values_.data(), values_.data() + ValuesPerWindow};
    }

    Window Append(Colour* end) override
    {
        char* const unwritten = text_.data() + unwritten_;
        unwritten_ =
            static_cast<std::size_t>(FormatLines({values_.data(), end}, unwritten) - text_.data());
        if (unwritten_ >= BlockLength) {
            WriteOut(BlockLength);
            std::memmove(text_.data(), text_.data() + BlockLength, unwritten_);
        }
        return {values_.data(), values_.data() + ValuesPerWindow};
    }

    void Finish(Colour* end) override
    {
        Append(end);
        WriteOut(unwritten_);
        if (std::fclose(file_.release()) != 0) throw Fault(FaultKind::DiskFull, name_);
    }

    void Open() override
    {
        std::error_code error;
        const fs::file_status status = fs::symlink_status(path_, error);
        if (!fs::exists(status)) throw Fault(FaultKind::FileNotFound, name_);
        // Opening a pipe would wait for ever; a link may lead anywhere.
        if (!fs::is_regular_file(status)) throw Fault(FaultKind::FileAccess, name_);
        Open("rb");
        unread_ = {text_.data(), text_.data()};
        atEnd_ = false;
    }

    Window Next() override
    {
        Colour* const first = values_.data();
        for (;;) {
            if (!atEnd_ && unread_.size() < LongestLine) ReadMore();
            Colour* const last = ParseLines(unread_, {first, ValuesPerWindow});
            if (last != first) return {first, last};
            // The next line is no plain one, or the last of the file.
            if (atEnd_ || unread_.size() >= LongestLine) return {first, ReadAwkwardValue(first)};
        }
    }

    void Close() override { file_.reset(); }

    void Kill() override
    {
        std::error_code error;
        if (!fs::remove(path_, error))
            throw Fault(error ? FaultKind::FileAccess : FaultKind::FileNotFound, name_);
    }

  private:
    /// Few enough for the processor to have them at hand when they are formatted.
    static constexpr std::size_t ValuesPerWindow = 1 << 12;
    /// Characters that are written at once. Whole pages: a page written in two parts costs the
    /// system almost twice.
    static constexpr std::size_t BlockLength = 1 << 18;
    static constexpr std::size_t TextLength = BlockLength + ValuesPerWindow * LongestLine;

    struct CloseFile {
        void operator()(std::FILE* file) const { std::fclose(file); }
    };

    void Open(const char* mode)
    {
        file_.reset(std::fopen(path_.c_str(), mode));
        if (!file_) throw Fault(FaultKind::FileAccess, name_);
        std::setvbuf(file_.get(), nullptr, _IONBF, 0);
        values_.resize(ValuesPerWindow);
        text_.resize(TextLength);
    }

    /// Writes the text's first `length` characters.
    void WriteOut(std::size_t length)
    {
        if (std::fwrite(text_.data(), 1, length, file_.get()) != length)
            throw Fault(FaultKind::DiskFull, name_);
        unwritten_ -= length;
    }

    /// The value at the start of the unread text, read by the general rules. Gives its end.
    Colour* ReadAwkwardValue(Colour* value)
    {
        std::optional<std::string_view> item = TakeItem(unread_, atEnd_);
        while (!item && !atEnd_ && unread_.size() < TextLength) {
            ReadMore();
            item = TakeItem(unread_, atEnd_);
        }
        if (!item) throw Fault(atEnd_ ? FaultKind::InputPastEnd : FaultKind::TypeMismatch, name_);
        *value = ValueOf(*item, name_);
        return value + 1;
    }

    void ReadMore()
    {
        std::memmove(text_.data(), unread_.data(), unread_.size());
        // As much as the processor still has at hand when it is parsed.
        const std::size_t room = std::min(TextLength - unread_.size(), ReadLength);
        const std::size_t got = std::fread(text_.data() + unread_.size(), 1, room, file_.get());
        if (std::ferror(file_.get()) != 0) throw Fault(FaultKind::FileAccess, name_);
        atEnd_ = got == 0;
        unread_ = {text_.data(), unread_.size() + got};
    }
    static constexpr std::size_t ReadLength = 1 << 16;

    std::string name_;
    fs::path path_;
    std::unique_ptr<std::FILE, CloseFile> file_;
    std::vector<Colour> values_;
    std::vector<char> text_;
    /// How many characters at the start of the text are still to be written.
    std::size_t unwritten_ = 0;
    std::string_view unread_;
    bool atEnd_ = false;
};

}  // namespace

std::unique_ptr<PixelFile::Store> TextStore(std::string name)
{
    return std::make_unique<Text>(std::move(name));
}

}  // namespace pixano

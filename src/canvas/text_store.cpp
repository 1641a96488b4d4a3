// The pixel working file as text on disk: one decimal number a line, lines ended by CR LF.
#include "canvas/fault.h"
#include "canvas/lines_ahead.h"
#include "canvas/pixel_file.h"
#include "canvas/value_text.h"

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
        file_.reset(std::fopen(path_.c_str(), "wbx"));
        if (!file_) throw Fault(FaultKind::FileAccess, name_);
        std::setvbuf(file_.get(), nullptr, _IONBF, 0);
        PrepareBuffers();
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
        Close();
        file_.reset(std::fopen(path_.c_str(), "rb"));
        if (!file_) throw Fault(FaultKind::FileAccess, name_);
        std::setvbuf(file_.get(), nullptr, _IONBF, 0);
        ahead_.Start(file_.get());
        plain_ = true;
    }

    Window Next() override
    {
        if (plain_) {
            const std::span<Colour> values = ahead_.Next();
            if (!values.empty()) return {values.data(), values.data() + values.size()};
            ReadOnByGeneralRules();
        }
        Colour* const first = values_.data();
        Colour* last = first;
        while (last == first) {
            last = ParseLines(unread_, {first, ValuesPerWindow});
            if (last == first) last = ReadAwkwardValue(first);
        }
        return {first, last};
    }

    void Close() override
    {
        ahead_.Stop();
        file_.reset();
    }

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

    void PrepareBuffers()
    {
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

    /// The next line is no plain one: from here the text is looked at as a whole.
    void ReadOnByGeneralRules()
    {
        plain_ = false;
        const std::size_t taken = ahead_.Stop();
        if (std::fseek(file_.get(), static_cast<long>(taken), SEEK_SET) != 0)
            throw Fault(FaultKind::FileAccess, name_);
        PrepareBuffers();
        unread_ = {text_.data(), text_.data()};
        atEnd_ = false;
    }

    /// The value at the start of the unread text, which is no plain line: read on, or read it by
    /// the general rules. Gives the end of the values read, `first` when there is only more text
    /// now.
    Colour* ReadAwkwardValue(Colour* first)
    {
        if (!atEnd_ && unread_.size() < LongestLine) {
            ReadMore();
            return first;
        }
        std::optional<std::string_view> item = TakeItem(unread_, atEnd_);
        if (!item && !atEnd_ && unread_.size() < TextLength) {
            ReadMore();
            return first;
        }
        if (!item && atEnd_) throw Fault(FaultKind::InputPastEnd, name_);
        if (!item) throw Fault(FaultKind::TypeMismatch, name_);
        *first = ValueOf(*item, name_);
        return first + 1;
    }

    void ReadMore()
    {
        std::memmove(text_.data(), unread_.data(), unread_.size());
        const std::size_t room = TextLength - unread_.size();
        const std::size_t got = std::fread(text_.data() + unread_.size(), 1, room, file_.get());
        if (std::ferror(file_.get()) != 0) throw Fault(FaultKind::FileAccess, name_);
        atEnd_ = got == 0;
        unread_ = {text_.data(), unread_.size() + got};
    }

    std::string name_;
    fs::path path_;
    std::unique_ptr<std::FILE, CloseFile> file_;
    std::vector<Colour> values_;
    std::vector<char> text_;
    /// How many characters at the start of the text are still to be written.
    std::size_t unwritten_ = 0;
    LinesAhead ahead_;
    /// Whether the text was nothing but plain lines so far.
    bool plain_ = false;
    std::string_view unread_;
    bool atEnd_ = false;
};

}  // namespace

std::unique_ptr<PixelFile::Store> TextStore(std::string name)
{
    return std::make_unique<Text>(std::move(name));
}

}  // namespace pixano

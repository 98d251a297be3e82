#include "PackedPiece.h"

#include "Deflater.h"
#include "platform/RegularFile.h"

#include <QFileInfo>

#include <algorithm>
#include <filesystem>
#include <new>

namespace TOLVAN_NAMESPACE
{

namespace
{

constexpr qint64 largestInMemory = 24 * 1024 * 1024; // Larger files are packed block by block.
constexpr std::size_t mostFiles = 64;

/// Reads and deflates a file that fits into memory.
std::optional<ArchiveProblem> packInMemory(PackedContent& content, Deflater& deflater)
{
    const qint64 size = content.file.size;
    const auto allocated = [size] {
        return std::unique_ptr<char[]>(new (std::nothrow) char[static_cast<std::size_t>(size) + 1]);
    };
    QFile file(content.file.path);
    if (const auto problem = openContent(file)) {
        return problem;
    }
    std::unique_ptr<char[]> plain = allocated();
    std::unique_ptr<char[]> packed = allocated();
    const qint64 length = plain && packed ? file.read(plain.get(), size + 1) : -1; // one more: has it grown?
    if (length != size) {
        return length < 0 ? ArchiveProblem::ReadFailed : ArchiveProblem::Changed;
    }
    content.checksum = updatedChecksum(0, plain.get(), size);
    content.size = deflater.deflate(plain.get(), size, packed.get());
    if (content.size > 0) {
        content.method = Deflated;
        content.data = std::move(packed);
    } else {
        content.size = size;
        content.data = std::move(plain);
    }
    return std::nullopt;
}

std::optional<ArchiveProblem> packLink(PackedContent& content)
{
    std::error_code error;
    const std::filesystem::path link(QFile::encodeName(content.file.path).toStdString());
    const std::string target = std::filesystem::read_symlink(link, error).string();
    if (error) {
        return ArchiveProblem::ReadFailed;
    }
    content.file.size = content.size = static_cast<qint64>(target.size());
    content.data.reset(new char[target.size() + 1]);
    std::copy(target.begin(), target.end(), content.data.get());
    content.checksum = updatedChecksum(0, target.data(), content.size);
    return std::nullopt;
}

} // namespace

std::optional<ArchiveProblem> openContent(QFile& file)
{
    if (Platform::openRegularFile(file)) {
        return std::nullopt;
    }
    const QFileInfo info(file);
    return !info.exists()      ? ArchiveProblem::NotFound
           : !info.isFile()    ? ArchiveProblem::NotAFile
           : info.isReadable() ? ArchiveProblem::ReadFailed
                               : ArchiveProblem::AccessDenied;
}

bool PackedContent::fitsMemory() const
{
    return !file.isFolder && file.size <= largestInMemory;
}

bool PackedPiece::isFull() const
{
    return m_memory >= smallest || contents.size() >= mostFiles;
}

void PackedPiece::add(PackedFile&& file)
{
    PackedContent content;
    content.file = std::move(file);
    m_memory += content.fitsMemory() ? 2 * content.file.size : 0;
    contents.push_back(std::move(content));
}

void PackedPiece::work()
{
    std::unique_ptr<Deflater> deflater = m_deflaters.take();
    for (PackedContent& content : contents) {
        if (content.file.isLink) {
            content.problem = packLink(content);
        } else if (content.fitsMemory()) {
            content.problem = packInMemory(content, *deflater);
        }
    }
    m_deflaters.giveBack(std::move(deflater));
}

} // namespace TOLVAN_NAMESPACE

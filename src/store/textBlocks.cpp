#include "textBlocks.h"

#include <algorithm>

namespace store {

const char* TextBlocks::add(QByteArrayView text)
{
    const auto bytes = static_cast<std::size_t>(text.size());
    if (m_blocks.empty() || bytes > m_blockBytes - m_used)
        addBlock(bytes);
    char* const copy = m_blocks.back().get() + m_used;
    std::ranges::copy(text, copy);
    m_used += bytes;
    return copy;
}

// Short lists stay small. Blocks of the largest size are few, and memory that was used before serves them again.
void TextBlocks::addBlock(std::size_t minimumBytes)
{
    constexpr std::size_t smallest = 4'096;
    constexpr std::size_t largest = 2'097'152;
    m_blockBytes = std::max(minimumBytes, std::clamp(2 * m_blockBytes, smallest, largest));
    m_blocks.push_back(std::make_unique_for_overwrite<char[]>(m_blockBytes));
    m_used = 0;
}

} // namespace store

#pragma once

#include <QByteArrayView>

#include <memory>
#include <vector>

namespace store {

/// Copies of texts that stay where they are as long as the blocks live: no block is moved when more are needed, so that
/// millions of texts are never copied twice. Moving the blocks to another object moves no text either.
class TextBlocks {
public:
    /// Where the copy begins.
    const char* add(QByteArrayView text);

private:
    void addBlock(std::size_t minimumBytes);

    std::vector<std::unique_ptr<char[]>> m_blocks;
    std::size_t m_blockBytes = 0;
    std::size_t m_used = 0; ///< of the last block
};

} // namespace store

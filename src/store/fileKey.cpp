#include "fileKey.h"

#include <openssl/crypto.h>
#include <openssl/evp.h>
#include <sqlite3.h>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <memory>
#include <mutex>
#include <optional>
#include <vector>

namespace store {

namespace {

// What the engine's version 3 makes of a password; the low number of rounds is that of every data file.
constexpr int rounds = 4000;
constexpr std::size_t keyBytes = 32;
constexpr std::size_t saltBytes = 16;

// The engine takes a derived key as x'...': key and salt in hexadecimal digits.
constexpr std::size_t keyTextSize = 2 * (keyBytes + saltBytes) + 3;

// The data files, and others in their places: a copy that was put back, the copies of a backup.
constexpr std::size_t maximumKeys = 8;

using Salt = std::array<unsigned char, saltBytes>;

struct Wipe {
    void operator()(char* text) const { OPENSSL_secure_clear_free(text, keyTextSize + 1); }
};
using KeyText = std::unique_ptr<char, Wipe>;

// From the connection's own file: closing a second one would release the locks that other connections hold on it. None
// in a file that is still empty.
std::optional<Salt> readSalt(sqlite3* database)
{
    sqlite3_file* file = nullptr;
    Salt salt;
    if (sqlite3_file_control(database, "main", SQLITE_FCNTL_FILE_POINTER, static_cast<void*>(&file)) != SQLITE_OK ||
        !file->pMethods || file->pMethods->xRead(file, salt.data(), saltBytes, 0) != SQLITE_OK)
        return std::nullopt;
    return salt;
}

// Null without memory for it.
KeyText deriveKeyText(const QByteArray& password, const Salt& salt)
{
    std::array<unsigned char, keyBytes + saltBytes> bytes{};
    std::ranges::copy(salt, bytes.begin() + keyBytes);
    KeyText text(static_cast<char*>(OPENSSL_secure_malloc(keyTextSize + 1)));
    const bool isDerived =
        text &&
        PKCS5_PBKDF2_HMAC_SHA1(password.constData(), static_cast<int>(password.size()), salt.data(), saltBytes, rounds,
                               keyBytes, bytes.data()) == 1 &&
        OPENSSL_buf2hexstr_ex(text.get() + 2, keyTextSize - 1, nullptr, bytes.data(), bytes.size(), '\0') == 1;
    OPENSSL_cleanse(bytes.data(), bytes.size());
    if (!isDerived)
        return nullptr;
    text.get()[0] = 'x';
    text.get()[1] = text.get()[keyTextSize - 1] = '\'';
    return text;
}

class FileKeys {
public:
    FileKeys()
    {
        // Locked in memory and left out of core dumps, as far as the system lets us.
        CRYPTO_secure_malloc_init(4096, 32);
        Q_UNUSED(std::at_quick_exit([] { all().forget(); }))
    }

    static FileKeys& all()
    {
        static FileKeys keys;
        return keys;
    }

    int setKey(sqlite3* database, const QByteArray& password, const Salt& salt)
    {
        const std::scoped_lock lock(m_mutex);
        auto known =
            std::ranges::find_if(m_keys, [&](const Key& key) { return key.salt == salt && key.password == password; });
        if (known == m_keys.end()) {
            KeyText text = deriveKeyText(password, salt);
            if (!text)
                return SQLITE_NOMEM;
            if (m_keys.size() == maximumKeys)
                m_keys.erase(m_keys.begin());
            known = m_keys.insert(m_keys.end(), {password, salt, std::move(text)});
        }
        return sqlite3_key(database, known->text.get(), keyTextSize);
    }

private:
    struct Key {
        QByteArray password;
        Salt salt;
        KeyText text;
    };

    void forget()
    {
        const std::scoped_lock lock(m_mutex);
        m_keys.clear();
    }

    std::mutex m_mutex;
    std::vector<Key> m_keys;
};

} // namespace

int setFileKey(sqlite3* database, const QByteArray& password)
{
    // A replaced file has another salt.
    const std::optional<Salt> salt = readSalt(database);
    return salt ? FileKeys::all().setKey(database, password, *salt)
                : sqlite3_key(database, password.constData(), static_cast<int>(password.size()));
}

} // namespace store

#pragma once

#include <QProcessEnvironment>

namespace values {

/// The environment for a program that is given names of files: ours are named in UTF-8 under every locale, others name
/// them in the encoding of theirs, so theirs must be UTF-8 too.
QProcessEnvironment utf8Environment();

} // namespace values

#pragma once

#include <QString>

#include <type_traits>

namespace store {

/// Joins the pieces of a statement: texts unchanged, whole numbers as digits, booleans as True or False.
template <typename... Pieces>
QString joinSql(const Pieces&... pieces)
{
    QString text;
    const auto append = [&text](const auto& piece) {
        using Piece = std::decay_t<decltype(piece)>;
        if constexpr (std::is_same_v<Piece, bool>)
            text += piece ? u"True" : u"False";
        else if constexpr (std::is_integral_v<Piece>)
            text += QString::number(piece);
        else
            text += QStringView(piece);
    };
    (append(pieces), ...);
    return text;
}

} // namespace store

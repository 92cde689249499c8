// The columns that an interface file gives a tree or a table in two dynamic properties, both lists
// of texts: `columnIdentifiers`, the names by which the data source knows them, in order, and
// `columnTitles`, what stands in the header, in English.
#pragma once

#include <string>
#include <vector>

#include <QWidget>

#include "platform/ports/LocalizedTexts.h"

namespace ui {

struct Columns {
    std::vector<std::string> identifiers;
    /// In the user's language.
    QStringList titles;

    /// Of the widget; the titles as they stand in the file when there are no `texts`.
    static Columns of(const QWidget& widget, const ports::LocalizedTexts* texts = nullptr) {
        Columns columns;
        for (const QString& name : widget.property("columnIdentifiers").toStringList())
            columns.identifiers.push_back(name.toStdString());
        for (const QString& title : widget.property("columnTitles").toStringList())
            columns.titles << (texts
                                   ? QString::fromStdString(texts->translated(title.toStdString()))
                                   : title);
        return columns;
    }

    int count() const { return static_cast<int>(identifiers.size()); }
    const std::string& operator[](int column) const {
        return identifiers[static_cast<std::size_t>(column)];
    }
    /// -1 when there is none.
    int find(std::string_view identifier) const {
        for (int column = 0; column < count(); ++column)
            if ((*this)[column] == identifier)
                return column;
        return -1;
    }
    /// Exactly these columns, in any order, each with a title?
    template <class Names>
    bool areExactly(const Names& names) const {
        bool all = identifiers.size() == std::size(names) &&
                   static_cast<std::size_t>(titles.size()) == std::size(names);
        for (const std::string_view name : names)
            all = all && find(name) >= 0;
        return all;
    }
};

} // namespace ui

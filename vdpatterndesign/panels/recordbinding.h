#pragma once

#include "controls/colorrole.h"
#include "controls/wholevalue.h"
#include "testcharttoolsdata.h"

#include <combobox.h>

#include <QAbstractButton>
#include <QLineEdit>

#include <algorithm>
#include <functional>
#include <vector>

namespace vardeno::testcharttools {

/// Which control shows which member of a group of the record, said once: collecting the group and pushing it
/// are loops over the rows, in the order in which they were bound. A painter follows through the controls'
/// own signals, unless a row says otherwise.
template <typename Group>
class RecordBinding
{
public:
    using Collect = std::function<void(Group& data)>;
    using Push = std::function<void(const Group& data)>;

    void bind(bool Group::*member, QAbstractButton* button)
    {
        bind([=](Group& data) { data.*member = button->isChecked(); },
             [=](const Group& data) { button->setChecked(data.*member); });
    }
    /// `then` is called after the push, whether or not it changed the entry.
    void bind(int Group::*member, SpinEditBox* entry, std::function<void()> then = {})
    {
        bind([=](Group& data) { data.*member = wholeValue(entry); },
             [=](const Group& data) {
                 entry->setValue(data.*member);
                 if (then)
                     then();
             });
    }
    /// By row; a number beyond the rows is cut to them.
    void bind(int Group::*member, ComboBox* box)
    {
        bind([=](Group& data) { data.*member = box->currentIndex(); },
             [=](const Group& data) { box->setCurrentIndex(std::clamp(data.*member, 0, box->count() - 1)); });
    }
    void bind(std::string Group::*member, QLineEdit* entry)
    {
        bind([=](Group& data) { data.*member = entry->text().toStdString(); },
             [=](const Group& data) { entry->setText(QString::fromStdString(data.*member)); });
    }
    /// `push` gets the colour of the record.
    void bind(RgbaColor Group::*member, const ColorRole& role, std::function<void(const QColor&)> push)
    {
        bind([member, &role](Group& data) { data.*member = toRgbaColor(role.color()); },
             [=](const Group& data) { push(toQColor(data.*member)); });
    }
    /// What is not shown by a single control; either may be empty.
    void bind(Collect collect, Push push) { m_rows.push_back({std::move(collect), std::move(push)}); }

    void collect(Group& data) const
    {
        for (const Row& row : m_rows) {
            if (row.collect)
                row.collect(data);
        }
    }
    void push(const Group& data) const
    {
        for (const Row& row : m_rows) {
            if (row.push)
                row.push(data);
        }
    }

private:
    struct Row
    {
        Collect collect;
        Push push;
    };
    std::vector<Row> m_rows;
};

} // namespace vardeno::testcharttools

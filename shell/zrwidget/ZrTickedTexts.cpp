#include "ZrTickedTexts.h"

#include "CheckBoxInMultiBox.h"

void ZrTickedTexts::clear()
{
    m_texts.clear();
    m_ends.clear();
    m_boxes.clear();
}

void ZrTickedTexts::append(const QString &text, CheckBoxInMultiBox *box)
{
    m_texts += text;
    m_ends.append(m_texts.size());
    m_boxes.append(box);
}

ZrTickedTexts::Joined ZrTickedTexts::joined(QChar separator) const
{
    Joined all;
    for (int row = 0; row < m_boxes.size(); ++row) {
        const CheckBoxInMultiBox *const box = m_boxes.at(row);
        if (!box || !box->isChecked())
            continue;
        if (all.count > 0)
            all.text += separator;
        const int begin = row > 0 ? m_ends.at(row - 1) : 0;
        all.text.append(m_texts.constData() + begin, m_ends.at(row) - begin);
        ++all.count;
    }
    return all;
}

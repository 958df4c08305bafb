#pragma once

#include <afxext.h>

/// The editable drop-down box of tolerance field codes. Entries of the library's short list are drawn bold.
class CTolBox : public CComboBoxEx
{
public:
    ~CTolBox() override;

    /// Codes differ in case (H7 is a hole, h7 a shaft); no room is kept for images.
    void SetFieldStyles();
    /// Adds an entry and returns its index. (The caller knows how many there are: asking the box for each of a thousand
    /// entries takes a third of the time.)
    int Insert(int index, const CString& code, bool listed);
    /// The code of an entry, cut at 255 characters; empty for an index behind the last one.
    CString Code(int index) const;
    /// What stands in the edit part.
    CString EditText() const;
    /// Puts a text into the edit part, unless it stands there already.
    void SetEditText(const CString& text);

    void DrawItem(LPDRAWITEMSTRUCT request) override;

protected:
    afx_msg void OnDrawItem(int controlId, LPDRAWITEMSTRUCT request);
    DECLARE_MESSAGE_MAP()

private:
    bool IsListed(int index) const;
};

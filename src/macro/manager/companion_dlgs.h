// The macro manager's small companions: two that ask for the name of a macro set, and two notices whose text
// is their background.
#pragma once

#include <memory>

#include "macro_manager/manager_layout.h"
#include "platform/edit_field.h"
#include "skin/form_dlg.h"

namespace tarnix {

/// Asks for a name and sends it to its owner, synchronously, as a Sent<std::string> in the long word. Nothing
/// is sent on Cancel.
class CSetNameDlg : public CFormDlg {
  protected:
    CSetNameDlg(const char* role, const manager::Companion& face, Message answer, Window& owner);
    void BuildControls(const Rect& client) override;
    void OnDestroy() override;

  private:
    void accept();

    Message m_answer;
    const char* m_caption; ///< of the field
    std::unique_ptr<EditField> m_field;
};

/// The name of a new macro set.
class CMacroManagerAddDlg : public CSetNameDlg {
  public:
    explicit CMacroManagerAddDlg(Window& owner);
};

/// The name of the macro set to delete.
class CMacroManagerDelSetDlg : public CSetNameDlg {
  public:
    explicit CMacroManagerDelSetDlg(Window& owner);
};

/// A notice without text of its own.
class CPictureNoticeDlg : public CFormDlg {
  protected:
    CPictureNoticeDlg(const char* role, const manager::Companion& face, Window& owner);
    void OnEnter() override;
};

/// A macro set must be chosen, or a macro must be selected, first.
class CMacroManagerNoteDlg : public CPictureNoticeDlg {
  public:
    explicit CMacroManagerNoteDlg(Window& owner);
};

/// There is no macro to delete.
class CMacroManagerAttentionDlg : public CPictureNoticeDlg {
  public:
    explicit CMacroManagerAttentionDlg(Window& owner);
};

} // namespace tarnix

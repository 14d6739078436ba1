// The bindings of the kinds of controls, one function a kind. Each makes its widget as a child of the context's parent.
#pragma once

#include "platform/forms/webbrowser.h"
#include "platform/qt/controlbinding.h"

namespace morlan {

std::unique_ptr<ControlBinding> BindLabel(Label& label, BindingContext& context);
std::unique_ptr<ControlBinding> BindTextSample(TextSample& sample, BindingContext& context);
std::unique_ptr<ControlBinding> BindButton(Button& button, BindingContext& context);
std::unique_ptr<ControlBinding> BindColourBox(ColourBox& box, BindingContext& context);
std::unique_ptr<ControlBinding> BindCheckBox(CheckBox& box, BindingContext& context);
std::unique_ptr<ControlBinding> BindOption(OptionButton& option, BindingContext& context);
std::unique_ptr<ControlBinding> BindTextBox(TextBox& box, BindingContext& context);
std::unique_ptr<ControlBinding> BindSpinButton(SpinButton& spin, BindingContext& context);
std::unique_ptr<ControlBinding> BindListBox(ListBox& list, BindingContext& context);
std::unique_ptr<ControlBinding> BindComboBox(ComboBox& box, BindingContext& context);
std::unique_ptr<ControlBinding> BindGrid(Grid& grid, BindingContext& context);
std::unique_ptr<ControlBinding> BindTabs(Tabs& tabs, BindingContext& context);
std::unique_ptr<ControlBinding> BindToolBar(ToolBar& toolBar, BindingContext& context);
std::unique_ptr<ControlBinding> BindPicture(Picture& picture, BindingContext& context);
std::unique_ptr<ControlBinding> BindWebBrowser(WebBrowser& browser, BindingContext& context);
std::unique_ptr<ControlBinding> BindPanel(Control& panel, BindingContext& context);

}  // namespace morlan

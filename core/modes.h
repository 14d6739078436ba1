// HTML mode and CDF mode of the main window: which bar of toolbars shows and which menus serve.
#pragma once

namespace morlan {

class Menu;
class Morlan;
class Program;

void SetHtmlMode(Program& program);
void SetCdfMode(Program& program);
void MarkMode(const Morlan& frame, Menu& menu);

}  // namespace morlan

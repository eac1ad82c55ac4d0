#pragma once

#include <QPrinter>
#include <QWidget>
#include <optional>
#include <string>
#include <vector>

#include "workspace/window_places.h"

namespace barvon {

class frmNotePad;

/// Makes the text viewer known: an untitled text, "Open Text File", and the window in which
/// outputs are shown. None of them blocks. Texts open beside `main`.
void Register_frmNotePad(QWidget* main);

/// Shows the file's text. A file that is open already comes to the front and is read again, over
/// typed text only when a person agrees. False when it can't be read.
bool Open_Text(const std::string& path, const QWidget& main);

/// The name of the main window's menu of fonts.
inline constexpr char kFontMenu[] = "mnuFontMenu";
/// Where text windows have their places.
Window_Place Room_For_Texts(const QWidget& main);

/// The windows that are open, by their indices.
std::vector<frmNotePad*> Open_Texts();
/// Closes them without a question.
void Discard_Texts();

/// The text that a person looks at, in UTF-8, and its caption; nothing when it is none.
struct Looked_At_Text {
  std::string caption, text;
};
std::optional<Looked_At_Text> Active_Text();
/// Prints it, in its font. False when there is none or the printer can't be written to.
bool Print_Active_Text(QPrinter& printer);

}  // namespace barvon

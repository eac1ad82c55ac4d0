#pragma once

#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QVBoxLayout>

#include "platform/qt/fields/latching_button.h"

namespace barvon {

/// What both boards are made of.

QGroupBox* Frame(QGroupBox* frame, const char* name, const char* caption);

/// The lines of a frame, one under the other.
QVBoxLayout* Lines(QGroupBox* frame, int gap);

/// A label that shows text of the project, whatever characters are in it.
QLabel* Text(QLabel* label, const char* text = "");

/// A check box that shows a state and takes no click.
QCheckBox* Shown_State(QCheckBox* box, const char* name, const char* caption);

/// A button with a picture, and a name to be read out and shown as its tip.
Latching_Button* Picture_Button(Latching_Button* button, const char* picture, const char* name);

/// The boards, each inside its frame.
void Build_Main_Menu_Board(struct Main_Controls& controls);
void Build_Data_Board(struct Main_Controls& controls);

}  // namespace barvon

#include "graphs/frm_place.h"

#include <QFormLayout>
#include <QScreen>
#include <QVBoxLayout>

#include "platform/ask/help_viewer.h"
#include "platform/ask/message_box.h"
#include "platform/qt/ask/window_in_front.h"
#include "platform/qt/fields/wrapping_label.h"

namespace barvon {
namespace {

constexpr char kTitle[] = "Place of the Grid";
constexpr int kLetters = 34;  // that a field shows
constexpr int kOverhang = 2;  // pixels
constexpr int kCornerLines = 5;
constexpr double kPartOfDisplay = 0.9;

}  // namespace

frmPlace::frmPlace(QWidget* window, const Result_Grid& grid,
                   const std::optional<Map_Place>& offered)
    : Input_Screen("frmPlace", window, {.placement = Screen_Setup::Placement::Centre}),
      grid_(grid),
      offered_(offered),
      txtEasting(New_Field(QStringLiteral("txtEasting"))),
      txtNorthing(New_Field(QStringLiteral("txtNorthing"))),
      txtTurn(New_Field(QStringLiteral("txtTurn"))),
      txtSystem(New_Field(QStringLiteral("txtSystem"))),
      cboUnit(new QComboBox(this)),
      lblCorners(new QLabel(this)) {
  setWindowTitle(QLatin1String(kTitle));
  cboUnit->setObjectName(QStringLiteral("cboUnit"));
  cboUnit->addItems({QStringLiteral("Metres, 1 ft is 0.3048 m (international foot)"),
                     QStringLiteral("Metres, 1 ft is 1200/3937 m (US survey foot)"),
                     QStringLiteral("Feet, the same as the grid's")});
  txtSystem->setPlaceholderText(QStringLiteral("for instance EPSG:32618"));
  lblCorners->setObjectName(QStringLiteral("lblCorners"));
  lblCorners->setAlignment(Qt::AlignLeft | Qt::AlignTop);
  lblCorners->setTextFormat(Qt::PlainText);
  lblCorners->setTextInteractionFlags(Qt::TextSelectableByMouse);
  lblCorners->setAccessibleName(QStringLiteral("Corners of the grid"));

  auto* fields = new QFormLayout;
  // Large letters on a small display: a field goes below its label.
  fields->setRowWrapPolicy(QFormLayout::WrapLongRows);
  fields->addRow(QStringLiteral("&Easting"), txtEasting);
  fields->addRow(QStringLiteral("&Northing"), txtNorthing);
  fields->addRow(QStringLiteral("&Turn (degrees, clockwise)"), txtTurn);
  fields->addRow(QStringLiteral("&Unit"), cboUnit);
  fields->addRow(QStringLiteral("Coordinate &system (may be empty)"), txtSystem);
  // The last letter may reach out of what the toolkit has measured.
  for (int row = 0; row < fields->rowCount(); ++row) {
    fields->itemAt(row, QFormLayout::LabelRole)->widget()->setContentsMargins(0, 0, kOverhang, 0);
  }
  auto* column = new QVBoxLayout(this);
  column->addWidget(Wrapping_Label(
      QStringLiteral("Easting and northing are those of the grid's corner point: row 1 and column "
                     "1, at the upper left, where X and Z are 0. Without a turn Z grows to the "
                     "east and X to the south; a turn is about the corner point, seen from "
                     "above."),
      this));
  column->addSpacing(6);
  column->addLayout(fields);
  column->addSpacing(6);
  column->addWidget(lblCorners);
  column->addSpacing(6);
  column->addLayout(Make_Command1());
  Tab_Through({txtEasting, txtNorthing, txtTurn, cboUnit, txtSystem});

  for (QLineEdit* field : {txtEasting, txtNorthing, txtTurn, txtSystem}) {
    connect(field, &QLineEdit::textChanged, this, [this] { Show_Corners(); });
  }
  connect(cboUnit, &QComboBox::currentIndexChanged, this, [this] { Show_Corners(); });
}

QLineEdit* frmPlace::New_Field(const QString& name) {
  auto* field = new QLineEdit(this);
  field->setObjectName(name);
  field->setMinimumWidth(field->fontMetrics().averageCharWidth() * kLetters);
  return field;
}

void frmPlace::Opening() {
  const Place_Entry entry = offered_ ? Entry_Of(*offered_) : Place_Entry{};
  txtEasting->setText(QString::fromStdString(entry.easting));
  txtNorthing->setText(QString::fromStdString(entry.northing));
  txtTurn->setText(QString::fromStdString(entry.turn));
  cboUnit->setCurrentIndex(static_cast<int>(entry.unit));
  txtSystem->setText(QString::fromStdString(entry.system));
  Show_Corners();
}

Place_Entry frmPlace::Entry() const {
  return {txtEasting->text().toStdString(), txtNorthing->text().toStdString(),
          txtTurn->text().toStdString(), static_cast<Place_Unit>(cboUnit->currentIndex()),
          txtSystem->text().toStdString()};
}

QLineEdit* frmPlace::Field_Of(Place_Field field) const {
  switch (field) {
    case Place_Field::easting:
      return txtEasting;
    case Place_Field::northing:
      return txtNorthing;
    case Place_Field::turn:
      return txtTurn;
    case Place_Field::system:
      break;
  }
  return txtSystem;
}

// Always the height of a heading and four corners, so that the window keeps its size while a person
// types.
void frmPlace::Show_Corners() {
  const Place_Reading read = Read_Place_Entry(Entry());
  const std::string words = read.place ? "With these the corner points of the grid are at\n" +
                                             Corners_In_Words(*read.place, grid_)
                                       : read.fault.words;
  lblCorners->setMinimumHeight(kCornerLines * lblCorners->fontMetrics().lineSpacing());
  // A row and its numbers stay together while the display has the room.
  const int width = lblCorners->fontMetrics().size(0, QString::fromStdString(words)).width();
  lblCorners->setWordWrap(!read.place ||
                          width > kPartOfDisplay * screen()->availableSize().width());
  lblCorners->setText(QString::fromStdString(words));
}

bool frmPlace::Accept_Entry() {
  const Place_Reading read = Read_Place_Entry(Entry());
  if (!read.place) {
    Show_Warning(read.fault.words);
    Field_Of(read.fault.field)->setFocus();
    Field_Of(read.fault.field)->selectAll();
    return false;
  }
  if (Looks_Like_Degrees(*read.place) &&
      Show_Message({.text = "Easting and northing look like degrees of longitude and latitude, and "
                            "are taken as metres or feet.  Is it so?",
                    .buttons = Buttons::YesNo,
                    .icon = Icon::Question,
                    .on_return = Answer::No}) != Answer::Yes) {
    txtEasting->setFocus();
    return false;
  }
  place_ = read.place;
  return true;
}

void frmPlace::Command1_Click(int index) {
  if (index == kHelp) {
    Show_Help({.command = Help_Command::PartialKey, .key = kTitle});
  } else if (index == kCancel || Accept_Entry()) {
    Unload();
  }
}

std::optional<Map_Place> Ask_Place(const Result_Grid& grid,
                                   const std::optional<Map_Place>& offered) {
  frmPlace screen(Window_In_Front(), grid, offered);
  screen.Open(true);
  return screen.place();
}

}  // namespace barvon

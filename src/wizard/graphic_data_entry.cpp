#include "wizard/graphic_data_entry.h"

#include <QAction>
#include <QContextMenuEvent>
#include <QInputDialog>
#include <QSignalBlocker>
#include <QVBoxLayout>
#include <vector>

#include "core/desk/accepted_screen.h"
#include "core/format_pattern.h"
#include "platform/ask/message_box.h"
#include "platform/qt/fields/field_rows.h"

namespace barvon {
namespace {

constexpr const Screen_Row& kScreen = Row_Of_Screen("Graphic_Data_Entry");
constexpr QSize kLeastPicture{480, 360};
constexpr char kPictureNote[] =
    "Drag a rectangle or type its corner and size, then construct the grid.";
constexpr char kPictureNoteOfGrid[] = "Click on two opposite corners of the disposal site.";
constexpr char kPictureNoteOfNothing[] =
    "A grid needs a width and a height: type them and construct it again, or clear it and drag a "
    "rectangle.";

Picture_Point On_Picture(const Feet_Point& point) { return {point.z, point.x}; }

/// The labels of two rectangles are the same: the frame tells them apart to who hears them.
void Name_By_Frame(const ControlArray<QLineEdit>& fields, const char* frame) {
  for (QLineEdit* field : fields) {
    field->setAccessibleName(QLatin1String(frame) + QStringLiteral(": ") + field->accessibleName());
  }
}

}  // namespace

Graphic_Data_Entry::Graphic_Data_Entry(QWidget* workspace)
    : Input_Screen(kScreen.name, workspace, {.help = {}}),
      record_(Project()),
      frame_(Named(new QGroupBox(QStringLiteral("Graphical Site Data"), this),
                   "Graphic_Data_Entry(0)")),
      Label4(Named(
          new QLabel(QStringLiteral("Click on Grid Points That Represents Upper Left and Lower "
                                    "Right Corners of Disposal Site.  Red Point Represents the "
                                    "Location of the Vessel."),
                     this),
          "Label4")),
      Label6(Named(new QLabel(this), "Label6")),
      Command2(Named(new QPushButton(QStringLiteral("&Clear"), this), "Command2")),
      Command3(Named(new QPushButton(QStringLiteral("Construct &Grid"), this), "Command3")),
      Picture1(
          Named(new Plan_Picture(QStringLiteral("Site grid"), QStringLiteral("site grid"), this),
                "Picture1")),
      fields_(this, Faces_Of(Graphic_Fields(), record_)) {
  setWindowTitle(frame_->title());
  auto* halves = new QHBoxLayout(frame_);
  halves->addWidget(Grid_Part(), 2);
  halves->addWidget(Site_Part(), 3);
  auto* column = new QVBoxLayout(this);
  column->addWidget(frame_, 1);
  column->addLayout(Make_Command1({QStringLiteral("OK"), QStringLiteral("C&ancel")}));
  std::vector<QWidget*> order(Text6.begin(), Text6.end());
  order.push_back(Command3);
  order.push_back(Picture1);
  order.insert(order.end(), Text2.begin(), Text2.end());
  order.insert(order.end(), Text3.begin(), Text3.end());
  order.push_back(Command2);
  Tab_Through(order);
  Connect();
}

QWidget* Graphic_Data_Entry::Grid_Part() {
  auto* part = new QWidget(frame_);
  auto* column = new QVBoxLayout(part);
  column->setContentsMargins(0, 0, 0, 0);
  QGroupBox* grid = fields_.Frame(kDrawnGridFrame);
  static_cast<QGridLayout*>(grid->layout())
      ->addWidget(Command3, kRectangleFields + 1, 0, 1, 2, Qt::AlignRight);
  column->addWidget(grid);
  column->addWidget(fields_.Frame(kDrawnPointsFrame));
  column->addStretch();
  Name_By_Frame(Text6, kDrawnGridFrame);
  return part;
}

QWidget* Graphic_Data_Entry::Site_Part() {
  auto* part = new QWidget(frame_);
  auto* column = new QVBoxLayout(part);
  column->setContentsMargins(0, 0, 0, 0);
  Picture1->setMinimumSize(kLeastPicture);
  column->addWidget(Picture1, 1);
  column->addWidget(Label6);
  auto* site = new QGroupBox(QLatin1String(kDrawnSiteFrame), part);
  auto* lines = new QVBoxLayout(site);
  auto* corners = new QHBoxLayout;
  for (const auto& corner : {std::pair{kUpperLeftX, kUpperLeftY}, {kLowerRightX, kLowerRightY}}) {
    auto* fields = new QWidget(site);
    Field_Rows rows(fields);
    rows.layout()->setContentsMargins(0, 0, 0, 0);
    fields_.Add(rows, {"Text3", corner.first});
    fields_.Add(rows, {"Text3", corner.second});
    corners->addWidget(fields);
  }
  lines->addLayout(corners);
  Label4->setWordWrap(true);
  auto* last = new QHBoxLayout;
  last->addWidget(Label4, 1);
  last->addWidget(Command2, 0, Qt::AlignBottom);
  lines->addLayout(last);
  column->addWidget(site);
  Name_By_Frame(Text3, kDrawnSiteFrame);
  return part;
}

void Graphic_Data_Entry::Connect() {
  for (QPushButton* button : {Command2, Command3}) button->setAutoDefault(false);
  for (const int field : {kUpperLeftX, kUpperLeftY, kWidth, kHeight}) {
    connect(Text6(field), &QLineEdit::textChanged, this, [this] { Rectangle_Typed(); });
  }
  connect(Command2, &QPushButton::clicked, this, [this] { Command2_Click(); });
  connect(Command3, &QPushButton::clicked, this, [this] { Command3_Click(); });
  connect(Picture1, &Plan_Picture::Area_Changed, this,
          [this](const Feet_Point& from, const Feet_Point& to) {
            Area_Dragged(Dragged_Texts(On_Picture(from), On_Picture(to)));
          });
  connect(Picture1, &Plan_Picture::Area_Chosen, this,
          [this](const Feet_Point& from, const Feet_Point& to) {
            Area_Dragged(Rectangle_Texts(On_Picture(from), On_Picture(to)));
            Show_Page();
          });
  connect(Picture1, &Plan_Picture::Point_Passed, this, [this](const Feet_Point& point) {
    Label6->setText(QString::fromStdString(Coordinates_Text(On_Picture(point))));
  });
  connect(Picture1, &Plan_Picture::Point_Chosen, this,
          [this](const Feet_Point& point) { Point_Chosen(On_Picture(point)); });
  // The picture has a menu of its own on the right button.
  auto* radius = new QAction(QStringLiteral("Radius of grid points..."), Picture1);
  connect(radius, &QAction::triggered, this, [this] { Ask_Radius(); });
  Picture1->addAction(radius);
}

void Graphic_Data_Entry::Opening() {
  fields_.Show(Fill_Fields(Graphic_Fields(), record_));
  Command2_Click();
  Label6->setText(QString::fromStdString(Coordinates_Text({})));
}

void Graphic_Data_Entry::Command1_Click(int index) {
  if (index == kOk) Save();
  if (index == kCancel) Unload();
}

void Graphic_Data_Entry::contextMenuEvent(QContextMenuEvent* event) {
  Ask_Radius();
  event->accept();
}

void Graphic_Data_Entry::Rectangle_Typed() {
  fields_.Show(Lower_Right_Texts(fields_.Texts()));
  if (!page_.grid) Show_Page();
}

void Graphic_Data_Entry::Area_Dragged(const Field_Texts& texts) {
  // One after the other they would draw rectangles of half-told sizes.
  for (QLineEdit* field : Text6) field->blockSignals(true);
  fields_.Show(texts);
  for (QLineEdit* field : Text6) field->blockSignals(false);
}

void Graphic_Data_Entry::Command3_Click() {
  const Field_Texts texts = fields_.Texts();
  Construct_Grid(texts, record_, page_);
  Area_Dragged(Constructed_Texts(texts, page_));
  fields_.Show(Corner_Texts(page_));
  Picture1->Set_Takes(Plan_Picture::Takes::points);
  Picture1->Set_Key_Steps({page_.grid->spacing_x, page_.grid->spacing_z});
  const Picture_Point& corner = page_.grid->upper_left;
  Show_Page();
  Picture1->Set_Cursor({corner.y, corner.x});
}

void Graphic_Data_Entry::Command2_Click() {
  Clear_Page(page_);
  Field_Texts texts;
  for (int i = kUpperLeftX; i <= kLowerRightY; ++i) texts("Text6", i) = "";
  for (const int i : {kWidth, kHeight}) texts("Text6", i) = "0";
  Area_Dragged(texts);
  fields_.Show(Corner_Texts(page_));
  Picture1->Set_Takes(Plan_Picture::Takes::points_and_areas);
  Picture1->Set_Key_Steps({});
  Show_Page();
}

void Graphic_Data_Entry::Point_Chosen(const Picture_Point& place) {
  Pick_Corner(place, page_);
  fields_.Show(Corner_Texts(page_));
  Show_Page();
  if (!page_.first) return;
  // The arrow keys go on from the point that was picked, not from beside it.
  const Picture_Point point = Place_Of(*page_.grid, page_.last.value_or(*page_.first));
  Picture1->Set_Cursor({point.y, point.x});
}

void Graphic_Data_Entry::Ask_Radius() {
  bool answered = false;
  const QString answer = QInputDialog::getText(
      this, QLatin1String(kMessageTitle),
      QStringLiteral("Set Radius of Grid Points Shown on Disposal Site Grid"), QLineEdit::Normal,
      QString::fromStdString(Format_Number(record_.GridPointRadius, "####")), &answered);
  if (!answered) return;
  Set_Point_Radius(answer.toStdString(), record_);
  Show_Page();
}

void Graphic_Data_Entry::Save() {
  bool takes_grid = false;
  if (Has_Grid_To_Take(page_)) {
    const Answer answer =
        Ask("Do You Wish to Use the Constructed Grid and the Corners of the Disposal Site for the "
            "Project?",
            Buttons::YesNoCancel, Icon::Question);
    if (answer == Answer::Cancel) return;
    takes_grid = answer == Answer::Yes;
  }
  Save_Page(page_, takes_grid, record_);
  Unload();
  Accept_Screen(kScreen, record_);
}

void Graphic_Data_Entry::Show_Page() {
  Picture1->Show(Draw_Page(fields_.Texts(), page_, record_));
  const char* note = kPictureNote;
  if (page_.grid) note = Has_Grid_To_Take(page_) ? kPictureNoteOfGrid : kPictureNoteOfNothing;
  Picture1->Set_Caption(QLatin1String(note));
}

}  // namespace barvon

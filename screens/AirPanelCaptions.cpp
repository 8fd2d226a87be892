// The appearance of the air-state panel: captions and colors by unit system, rows, and accessible names.

#include "screens/AirPanel.h"

using namespace forms;

void AirPanel::RepaintForm()
{
    const bool isMetric = IsMetric();
    for (Label* degrees : {&lblTdb2, &lblTwb2, &lblDewPt2})
        degrees->setCaption(isMetric ? " Deg. C" : " Deg. F");
    setCaption(isMetric ? rules.captionMetric : rules.captionEnglish);
    lblW2.setCaption(isMetric ? rules.metricHumidityUnit : " lb. water/lb. dry air");
    if (isMetric)
        lblGrains1.setCaption("  ");
    lblGrains2.setCaption(isMetric ? "  " : " grains");
    txtGrains.setEnabled(!isMetric);
    txtGrains.setBackColour(isMetric ? Colours::Grey : Colours::LightGreen);
    lblSpVol2.setCaption(isMetric ? " m3/kg dry air" : " ft3/lb.");
    lblEnthalpy2.setCaption(isMetric ? " kJ/kg" : " Btu/lb.");
    lblP2.setCaption(isMetric ? " kPa" : " psi");
    txtP.setCaption(PlainText(BaroPressure));
    repaintExtras();
    lblRH2.setCaption(" %");
    ColourLabels({&lblTwb2, &lblRH2, &lblDewPt2, &lblW2, &lblGrains2}, Colours::Grey); // no warnings
    nameFields();
}

void AirPanel::layOutRows()
{
    LayOutInFrame(Frame2, {{lblTdb1, txtTdb, lblTdb2}, {lblP1, txtP, lblP2}});
    LayOutInFrame(Frame1, {{lblTwb1, txtTwb, lblTwb2},
                           {lblDewPt1, txttd, lblDewPt2},
                           {lblRH1, txtRH, lblRH2},
                           {lblW1, txtW, lblW2},
                           {lblGrains1, txtGrains, lblGrains2}});
    LayOutInFrame(Frame3, {{lblEnthalpy1, txth, lblEnthalpy2}, {lblSpVol1, txtSpVol, lblSpVol2}});
    ColourLabels({&lblTdb2, &lblP2, &lblEnthalpy2, &lblSpVol2}, Colours::Grey);
    txtP.setBoxed();
    for (TextField* field : {&txtTdb, &txtTwb, &txttd, &txtRH, &txtW, &txtGrains, &txth, &txtSpVol})
        field->alignRight();
    txth.leaveTabOrder();
    txtSpVol.leaveTabOrder();
}

void AirPanel::layOutActions(std::initializer_list<Button*> buttons)
{
    auto* const actions = new Column(Frame5, {14, 14, 14, 14}, 12);
    for (Button* button : buttons) {
        SetLeastHeight(*button, HeightOfLines(*button, 2));
        actions->add(*button);
    }
    actions->addStretch();
}

void AirPanel::layOutFrames(Grid& grid, Frame* underActions)
{
    auto* const side = new Column;
    side->setSpacing(14);
    side->add(Frame5, 1);
    if (underActions != nullptr)
        side->add(*underActions);

    grid.setContentsMargins(16, 16, 16, 16);
    grid.setSpacing(14);
    grid.add(Frame2, 0, 0);
    grid.add(Frame1, 1, 0);
    grid.add(Frame3, 2, 0);
    grid.addLayout(side, 0, 1, 4, 1);
    grid.setColumnStretch(0, 1);
    grid.setRowStretch(3, 1);
}

void AirPanel::layOutFramesBelow(Frame& banner, Frame* underActions)
{
    banner.showCaptionAlone();
    auto* const line = new Line;
    line->setContentsMargins(16, 0, 16, 0);
    line->add(banner);

    auto* const panel = new Grid;
    layOutFrames(*panel, underActions);
    auto* const whole = new Column(*this, {0, 12, 0, 0}, 0);
    whole->addLayout(line);
    whole->addLayout(panel, 1);
}

void AirPanel::nameFields()
{
    NameWithUnit(txtTdb, "Dry bulb temperature", lblTdb2.caption());
    NameWithUnit(txtP, "Barometric pressure " + txtP.caption(), lblP2.caption());
    NameWithUnit(txtTwb, "Wet bulb temperature", lblTwb2.caption());
    NameWithUnit(txttd, "Dew point temperature", lblDewPt2.caption());
    NameWithUnit(txtRH, "Relative humidity", lblRH2.caption());
    NameWithUnit(txtW, "Humidity ratio W", lblW2.caption());
    NameWithUnit(txtGrains, "Humidity ratio in grains", lblGrains2.caption());
    NameWithUnit(txth, "Enthalpy", lblEnthalpy2.caption());
    NameWithUnit(txtSpVol, "Specific volume", lblSpVol2.caption());
}

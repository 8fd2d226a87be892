// The streams of the mixed air calculator: saving them with their volumes, mixing and reviewing them.

#include "core/Mixing.h"
#include "platform/forms/MsgBox.h"
#include "screens/Answers1.h"
#include "screens/MixedAir.h"
#include "screens/cfmForm.h"

using namespace forms;

namespace {

/// Copies the solver's results to a stream's snapshot. Fields not named here stay 0.
void keepSolved(AirSnapshot& stream)
{
    stream.RH = StatePoint.RH.asSingle();
    if (!IsMetric())
        stream.Grains = StatePoint.Grains.asSingle();
    stream.SpVol = StatePoint.SpVol.asSingle();
    stream.h = StatePoint.h;
    stream.td = StatePoint.td.asSingle();
    stream.P = StatePoint.P.asSingle();
    stream.Twb = StatePoint.Twb.asSingle();
}

void keepState(AirSnapshot& stream)
{
    keepSolved(stream);
    stream.W = StatePoint.W.asSingle();
    stream.Tdb = StatePoint.Tdb;
}

} // namespace

// Intentional: Cancel in the dialog still saves the stream, with a volume of 0.
void MixedAir::btnSaveOSA_Click()
{
    form<cfmForm>().ShowModal();
    lblcfm1.setCaption(IsMetric() ? " m3/h Outside Air" : " Cfm Outside Air");
    if (AirVolume != 0) {
        Frame4.show();
        txtcfm1.setText(PlainText(AirVolume));
    }
    txtCFM.clear();
    MixedOutsideAir.AirVolume = AirVolume.asSingle();
    keepState(MixedOutsideAir);
    offerReview(mnuReviewOutsideAir);
    setVolumesVisible(true);
    btnMixedAir.enable();
}

// Intentional: unlike the outside air, the return air sets no caption and doesn't show the volumes. Only the
// return air offers its last volume again.
void MixedAir::btnRA_Click()
{
    if (MixedReturnAir.AirVolume > 0)
        AirVolumePreset = MixedReturnAir.AirVolume;
    form<cfmForm>().ShowModal();
    if (AirVolume != 0) {
        Frame4.show();
        txtcfm2.setText(PlainText(AirVolume));
    }
    MixedReturnAir.AirVolume = AirVolume.asSingle();
    txtCFM.clear();
    keepState(MixedReturnAir);
    offerReview(mnuReviewReturnAir);
    btnMixedAir.enable();
}

void MixedAir::offerReview(MenuCommand& stream)
{
    mnuReview.enable();
    mnuReview.show();
    stream.enable();
    stream.show();
}

void MixedAir::btnMixedAir_Click()
{
    try {
        mix();
    } catch (const RunTimeError&) {
        // Intentional: a missing stream divides by zero, and the failure is not reported.
    }
}

// The mixed volume is the sum of the volumes, not derived from the mixed density.
void MixedAir::mix()
{
    const AirSnapshot& outside = MixedOutsideAir;
    const AirSnapshot& back = MixedReturnAir;
    MixedResultAir.AirVolume = (TaggedNumber(back.AirVolume) + outside.AirVolume).asSingle();
    if (MixedResultAir.AirVolume <= 0) {
        MsgBox("Air Volumes Must First Be Entered Before Attempting to calculate mixed air!");
        return;
    }
    const TaggedNumber outsideFlow = DryAirFlow(outside.AirVolume, outside.SpVol);
    const TaggedNumber returnFlow = DryAirFlow(back.AirVolume, back.SpVol);
    StatePoint.W = MeanByDryAir(outside.W, outsideFlow, back.W, returnFlow);
    if (!IsMetric())
        StatePoint.Grains = 7000 * StatePoint.W;
    StatePoint.h = MeanByDryAir(outside.h, outsideFlow, back.h, returnFlow).asSingle();
    StatePoint.Tdb = DryBulbFromEnthalpy(StatePoint.h, StatePoint.W.asSingle());
    txtTdb.setText(PlainText(StatePoint.Tdb));
    txtCFM.setText(PlainText(MixedResultAir.AirVolume));

    SolveFromW(); // at the pressure of the last calculation; a refusal is ignored
    keepState(MixedResultAir);
    KeepLastRun(Calculator::MixedAir,
                {{"outside", MixedOutsideAir}, {"return", MixedReturnAir}, {"mix", MixedResultAir}});
    Hide();
    showAnswers();
}

void MixedAir::showAnswers()
{
    auto& answers = form<Answers1>();
    answers.setCaption("Mixed Air Properties");
    answers.fill();
    answers.Show();
}

void MixedAir::showStream(const AirSnapshot& stream, TextField& volume)
{
    volume.setText(PlainText(stream.AirVolume));
    txtTdb.setText(PlainText(stream.Tdb));
    txtW.setText(PlainText(stream.W));
    StatePoint.Tdb = stream.Tdb;
    StatePoint.W = stream.W;
    SolveFromW(); // intentional: fails if the stream was never saved
}

void MixedAir::mnuReviewOutsideAir_Click()
{
    showStream(MixedOutsideAir, txtcfm1);
    keepSolved(MixedOutsideAir);
    Results2Form();
}

void MixedAir::mnuReviewReturnAir_Click()
{
    showStream(MixedReturnAir, txtcfm2);
    txtCFM.clear(); // the review of the outside air keeps it
    keepSolved(MixedReturnAir);
    Results2Form();
}

// "Kunden suchen": beside what every partner search does, the open documents of the chosen customer and the entries for
// his reports and his history.
#pragma once

#include <functional>
#include <string_view>
#include <vector>

#include "partners/PartnerDocuments.h"
#include "partners/PartnerSearch.h"

namespace kontorwerk {

// Shows the document of a kind ("RG") and a number in its preview.
using PartnerDocumentPreview = std::function<void(std::string_view kind, std::string_view number)>;

class KDsuchen final : public PartnerSearch {
 public:
  KDsuchen(Context& context, PartnerFlags& flags, PartnerEdit& edit, const PartnerReceivers& receivers,
           APAuswahl& chooser);

  // What a double click on an open document does; nothing until it is set.
  void SetDocumentPreview(PartnerDocumentPreview preview) { preview_ = std::move(preview); }

  MenuEntry Kundenhistorie{*this, "Kundenhistorie"};
  MenuEntry KDDrucken{*this, "KDDrucken"};
  MenuEntry KDAdresse_Drucken{*this, "KDAdresse_Drucken"};
  MenuEntry KDBelege_Drucken{*this, "KDBelege_Drucken"};
  ListView Suchergebnis2{*this, "Suchergebnis2"};
  Label Label13{*this, "Label13"};  // the captions ...
  Label Label14{*this, "Label14"};
  Label Label15{*this, "Label15"};
  Label Label16{*this, "Label16"};
  Label Label17{*this, "Label17"};
  Label Label22{*this, "Label22"};
  Label Label18{*this, "Label18"};  // ... and the sums: invoices, delivery notes, quotations, credit notes
  Label Label19{*this, "Label19"};
  Label Label20{*this, "Label20"};
  Label Label21{*this, "Label21"};
  CommandButton Command12{*this, "Command12"};

 private:
  void OnLoad() override;
  void AllowPartnerMenus(bool allowed) override;
  void ShowMore(std::string_view number) override;
  void HideMore() override { SetDocumentsVisible(false); }

  void ShowDocuments(const PartnerDocuments& open);
  void SetDocumentsVisible(bool visible);
  void PreviewDocument();
  void GoToOpenDocuments();

  PartnerDocumentPreview preview_;
  std::vector<Control*> documentControls_{&Suchergebnis2, &Label13, &Label14, &Label15, &Label16, &Label17,
                                          &Label22,       &Label18, &Label19, &Label20, &Label21, &Command12};
};

}  // namespace kontorwerk

// The qualified names of the elements and attributes that the writers touch,
// made once for the process so that no name is converted per element. The
// parser runs without namespace processing, so names carry their prefixes.
#pragma once

#include "platform/opc/xerces_helper.h"

namespace deckforge {
namespace ppt {
namespace xml {

using Name = opc::model::XercesString;

inline Name const kSpTree{u"p:spTree"};
inline Name const kSp{u"p:sp"};
inline Name const kNvSpPr{u"p:nvSpPr"};
inline Name const kCNvPr{u"p:cNvPr"};
inline Name const kCNvSpPr{u"p:cNvSpPr"};
inline Name const kNvPr{u"p:nvPr"};
inline Name const kSpPr{u"p:spPr"};
inline Name const kTxBody{u"p:txBody"};
inline Name const kDrawingSpPr{u"a:spPr"};
inline Name const kDrawingTxBody{u"a:txBody"};
inline Name const kXfrm{u"a:xfrm"};
inline Name const kOff{u"a:off"};
inline Name const kExt{u"a:ext"};
inline Name const kPrstGeom{u"a:prstGeom"};
inline Name const kBodyPr{u"a:bodyPr"};
inline Name const kLstStyle{u"a:lstStyle"};
inline Name const kP{u"a:p"};
inline Name const kEndParaRPr{u"a:endParaRPr"};
inline Name const kPic{u"p:pic"};
inline Name const kNvPicPr{u"p:nvPicPr"};
inline Name const kCNvPicPr{u"p:cNvPicPr"};
inline Name const kPicLocks{u"a:picLocks"};
inline Name const kBlipFill{u"p:blipFill"};
inline Name const kBlip{u"a:blip"};
inline Name const kStretch{u"a:stretch"};
inline Name const kFillRect{u"a:fillRect"};

inline Name const kId{u"id"};
inline Name const kName{u"name"};
inline Name const kX{u"x"};
inline Name const kY{u"y"};
inline Name const kCx{u"cx"};
inline Name const kCy{u"cy"};
inline Name const kPrst{u"prst"};
inline Name const kRect{u"rect"};
inline Name const kNoGrp{u"noGrp"};
inline Name const kNoChangeAspect{u"noChangeAspect"};
inline Name const kEmbed{u"r:embed"};
inline Name const kExtLst{u"a:extLst"};
inline Name const kUri{u"uri"};
inline Name const kSvgBlip{u"asvg:svgBlip"};
inline Name const kXmlnsAsvg{u"xmlns:asvg"};
inline Name const kXmlnsR{u"xmlns:r"};
// Ties a shape element to its TemplateShape while the document is in the
// model; writers take it away.
inline Name const kDataUid{u"data-uid"};

}  // namespace xml
}  // namespace ppt
}  // namespace deckforge

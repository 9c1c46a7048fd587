#include "report/StringGroups.hpp"

namespace tolvane {

const char* const ResFilter[7] = {
    "$$$/Tolvane/Str/ResFilter/0/Win=filter",
    "$$$/Tolvane/Str/ResFilter/1/Win=Document Info",
    "$$$/Tolvane/Str/ResFilter/2=Document Info",
    "$$$/Tolvane/Str/ResFilter/3=Document &Info...",
    "$$$/Tolvane/Str/ResFilter/4=Show Document Info",
    "$$$/Tolvane/Str/ResFilter/5=Hide Document Info",
    "$$$/Tolvane/Str/ResFilter/6=Tolvane: document information for Zelmora",
};

const char* const ResReadWrite[13] = {
    "$$$/Tolvane/Str/ResReadWrite/0/Win=readwrite",
    "$$$/Tolvane/Str/ResReadWrite/1=Write Error:  Disk is full.",
    "$$$/Tolvane/Str/ResReadWrite/2=Write Error:  I/O Error.",
    "$$$/Tolvane/Str/ResReadWrite/3=Write Error:  File Not Found.",
    "$$$/Tolvane/Str/ResReadWrite/4=Write Error:  Disk is locked.",
    "$$$/Tolvane/Str/ResReadWrite/5=Write Error:  File is locked.",
    "$$$/Tolvane/Str/ResReadWrite/6=Write Error:  File is open in another application.",
    "$$$/Tolvane/Str/ResReadWrite/7=Write Error:  A file by this name already exists.",
    "$$$/Tolvane/Str/ResReadWrite/8=Write Error:  You do not have ^[write^] permissions for this "
    "file.",
    "$$$/Tolvane/Str/ResReadWrite/9=Write Error:",
    "$$$/Tolvane/Str/ResReadWrite/10=Read Error:  I/O Error.",
    "$$$/Tolvane/Str/ResReadWrite/11=Read Error:  File Not Found.",
    "$$$/Tolvane/Str/ResReadWrite/12=Read Error:",
};

const char* const ResOther[10] = {
    "$$$/Tolvane/Str/ResOther/0/Win=other",
    "$$$/Tolvane/Str/ResOther/1=YES",
    "$$$/Tolvane/Str/ResOther/2=NO",
    "$$$/Tolvane/Str/ResOther/3=ON",
    "$$$/Tolvane/Str/ResOther/4=OFF",
    "$$$/Tolvane/Str/ResOther/5=UNKNOWN",
    "$$$/Tolvane/Str/ResOther/6=NONE",
    "$$$/Tolvane/Str/ResOther/7=:",
    "$$$/Tolvane/Str/ResOther/8=%s: %d",
    "$$$/Tolvane/Str/ResOther/9=too long to display",
};

const char* const ResDocument[13] = {
    "$$$/Tolvane/Str/ResDocument/0/Win=document",
    "$$$/Tolvane/Str/ResDocument/1=Name:",
    "$$$/Tolvane/Str/ResDocument/2=Color Mode:",
    "$$$/Tolvane/Str/ResDocument/3=Color Profile:",
    "$$$/Tolvane/Str/ResDocument/4=Ruler Units:",
    "$$$/Tolvane/Str/ResDocument/5=Artboard Dimensions:",
    "$$$/Tolvane/Str/ResDocument/6=Show Images in Outline Mode: ",
    "$$$/Tolvane/Str/ResDocument/7=URL:",
    "$$$/Tolvane/Str/ResDocument/8=Highlight Substituted Fonts: ",
    "$$$/Tolvane/Str/ResDocument/9=Highlight Substituted Glyphs: ",
    "$$$/Tolvane/Str/ResDocument/10=Preserve Text Editability",
    "$$$/Tolvane/Str/ResDocument/11=Preserve Text Appearance",
    "$$$/Tolvane/Str/ResDocument/12=Simulate Colored Paper: ",
};

const char* const ResPopup[2] = {
    "$$$/Tolvane/Str/ResPopup/0/Win=popup",
    "$$$/Tolvane/Str/ResPopup/1=Info:",
};

const char* const ResObject[29] = {
    "$$$/Tolvane/Str/ResObject/0/Win=object",
    "$$$/Tolvane/Str/ResObject/1=Paths:",
    "$$$/Tolvane/Str/ResObject/2=points",
    "$$$/Tolvane/Str/ResObject/3=Clipping Masks:",
    "$$$/Tolvane/Str/ResObject/4=Compound Paths:",
    "$$$/Tolvane/Str/ResObject/5=Opacity Masks:",
    "$$$/Tolvane/Str/ResObject/6=Transparent Groups:",
    "$$$/Tolvane/Str/ResObject/7=Transparent Objects:",
    "$$$/Tolvane/Str/ResObject/8=RGB Objects:",
    "$$$/Tolvane/Str/ResObject/9=CMYK Objects:",
    "$$$/Tolvane/Str/ResObject/10=Grayscale Objects:",
    "$$$/Tolvane/Str/ResObject/11=Spot Color Objects:",
    "$$$/Tolvane/Str/ResObject/12=Pattern Objects:",
    "$$$/Tolvane/Str/ResObject/13=Gradient Objects:",
    "$$$/Tolvane/Str/ResObject/14=Fonts:",
    "$$$/Tolvane/Str/ResObject/15=Linked Images:",
    "$$$/Tolvane/Str/ResObject/16=Embedded Images:",
    "$$$/Tolvane/Str/ResObject/17=Gradient Meshes:",
    "$$$/Tolvane/Str/ResObject/18=Brushed Objects:",
    "$$$/Tolvane/Str/ResObject/19=Styled Objects:",
    "$$$/Tolvane/Str/ResObject/20=Symbol Instance Sets:",
    "$$$/Tolvane/Str/ResObject/21=Symbol Instances:",
    "$$$/Tolvane/Str/ResObject/22=Compound Shapes:",
    "$$$/Tolvane/Str/ResObject/23=Blends:",
    "$$$/Tolvane/Str/ResObject/24=Non-Native Art Objects:",
    "$$$/Tolvane/Str/ResObject/25=open",
    "$$$/Tolvane/Str/ResObject/26=closed",
    "$$$/Tolvane/Str/ResObject/27=length",
    "$$$/Tolvane/Str/ResObject/28=Live Paint Groups:",
};

const char* const ResGradient[8] = {
    "$$$/Tolvane/Str/ResGradient/0/Win=gradient",
    "$$$/Tolvane/Str/ResGradient/1= (linear)",
    "$$$/Tolvane/Str/ResGradient/2= (radial)",
    "$$$/Tolvane/Str/ResGradient/3= (Grayscale)",
    "$$$/Tolvane/Str/ResGradient/4= (RGB)",
    "$$$/Tolvane/Str/ResGradient/5= (CMYK)",
    "$$$/Tolvane/Str/ResGradient/6= (Mixed)",
    "$$$/Tolvane/Str/ResGradient/7=Unnamed gradient",
};

const char* const ResImage[26] = {
    "$$$/Tolvane/Str/ResImage/0/Win=image",
    "$$$/Tolvane/Str/ResImage/1=Linked Image",
    "$$$/Tolvane/Str/ResImage/2=Embedded Image",
    "$$$/Tolvane/Str/ResImage/3=(Unknown image)",
    "$$$/Tolvane/Str/ResImage/4=Type: ",
    "$$$/Tolvane/Str/ResImage/5=EPS",
    "$$$/Tolvane/Str/ResImage/6=Black & White Bitmap",
    "$$$/Tolvane/Str/ResImage/7=Grayscale",
    "$$$/Tolvane/Str/ResImage/8=RGB",
    "$$$/Tolvane/Str/ResImage/9=CMYK",
    "$$$/Tolvane/Str/ResImage/10=Transparent Grayscale",
    "$$$/Tolvane/Str/ResImage/11=Transparent RGB",
    "$$$/Tolvane/Str/ResImage/12=Transparent CMYK",
    "$$$/Tolvane/Str/ResImage/13=Bits per Pixel: ",
    "$$$/Tolvane/Str/ResImage/14=Channels: ",
    "$$$/Tolvane/Str/ResImage/15=Size: ",
    "$$$/Tolvane/Str/ResImage/16=K, ",
    "$$$/Tolvane/Str/ResImage/17= by ",
    "$$$/Tolvane/Str/ResImage/18= pixels",
    "$$$/Tolvane/Str/ResImage/19=Dimensions: ",
    "$$$/Tolvane/Str/ResImage/20= by ",
    "$$$/Tolvane/Str/ResImage/21= points ",
    "$$$/Tolvane/Str/ResImage/22=Resolution: ",
    "$$$/Tolvane/Str/ResImage/23= by ",
    "$$$/Tolvane/Str/ResImage/24= pixels per inch",
    "$$$/Tolvane/Str/ResImage/25=Other",
};

const char* const ResMode[5] = {
    "$$$/Tolvane/Str/ResMode/0/Win=mode",
    "$$$/Tolvane/Str/ResMode/1=Document Info",
    "$$$/Tolvane/Str/ResMode/2=Selection Info",
    "$$$/Tolvane/Str/ResMode/3=Save Document Info As:",
    "$$$/Tolvane/Str/ResMode/4=Save Selection Info As:",
};

const char* const ResSave[3] = {
    "$$$/Tolvane/Str/ResSave/0/Win=save",
    "$$$/Tolvane/Str/ResSave/1/Win=Info.txt",
    "$$$/Tolvane/Str/ResSave/2/Win= Info.txt",
};

const char* const ResGPNError[5] = {
    "$$$/Tolvane/Str/ResGPNError/0/Win=gpnerror",
    "$$$/Tolvane/Str/ResGPNError/1= (Unknown Volume) Please mount volume.",
    "$$$/Tolvane/Str/ResGPNError/2= (File Not Found) Please reselect file.",
    "$$$/Tolvane/Str/ResGPNError/3= (Directory Not Found) Please reselect file.",
    "$$$/Tolvane/Str/ResGPNError/4= Error.  Please set file/folder again.",
};

const char* const ResFontDetail[19] = {
    "$$$/Tolvane/Str/ResFontDetail/0/Win=fontdetail",
    "$$$/Tolvane/Str/ResFontDetail/1=NOT Installed.",
    "$$$/Tolvane/Str/ResFontDetail/2=NOT Installed.",
    "$$$/Tolvane/Str/ResFontDetail/3=Roman",
    "$$$/Tolvane/Str/ResFontDetail/4=Japanese",
    "$$$/Tolvane/Str/ResFontDetail/5=Unknown language",
    "$$$/Tolvane/Str/ResFontDetail/6=GX TrueType",
    "$$$/Tolvane/Str/ResFontDetail/7=Folionix-J Tsume",
    "$$$/Tolvane/Str/ResFontDetail/8=CID",
    "$$$/Tolvane/Str/ResFontDetail/9=N/A",
    "$$$/Tolvane/Str/ResFontDetail/10/Win=%s\r\n  PostScript Name: %s\r\n  Windows Font Name: "
    "%s\r\n\r\n  Language:   %s\r\n  Font Type:  %s\r\n  Tsume Type: %s\r\n\r\n",
    "$$$/Tolvane/Str/ResFontDetail/11=Traditional Chinese",
    "$$$/Tolvane/Str/ResFontDetail/12=Korean",
    "$$$/Tolvane/Str/ResFontDetail/13=Simplified Chinese",
    "$$$/Tolvane/Str/ResFontDetail/14=Native Zelmora Script",
    "$$$/Tolvane/Str/ResFontDetail/15=Cyrillic Zelmora Script",
    "$$$/Tolvane/Str/ResFontDetail/16=East European Roman Zelmora Script",
    "$$$/Tolvane/Str/ResFontDetail/17=Symbol Zelmora Script",
    "$$$/Tolvane/Str/ResFontDetail/18=Unknown Zelmora Script",
};

const char* const ResTitleTextBase[12] = {
    "<To begin strings at index 1>",
    "$$$/Tolvane/Str/ResTitleTextBase/1=Document:",
    "$$$/Tolvane/Str/ResTitleTextBase/2/Mac=Spot Color Objects:",
    "$$$/Tolvane/Str/ResTitleTextBase/3/Mac=Pattern Objects:",
    "$$$/Tolvane/Str/ResTitleTextBase/4/Mac=Gradient Objects:",
    "$$$/Tolvane/Str/ResTitleTextBase/5=Fonts:",
    "$$$/Tolvane/Str/ResTitleTextBase/6=Objects:",
    "$$$/Tolvane/Str/ResTitleTextBase/7=Linked Images:",
    "$$$/Tolvane/Str/ResTitleTextBase/8=Embedded Images:",
    "$$$/Tolvane/Str/ResTitleTextBase/9=Font Details:",
    "$$$/Tolvane/Str/ResTitleTextBase/10=Brushes:",
    "$$$/Tolvane/Str/ResTitleTextBase/11=Graphic Styles:",
};

const char* const ResColorModel[6] = {
    "$$$/Tolvane/Str/ResColorModel/0/Win=colormodel",
    "$$$/Tolvane/Str/ResColorModel/1=Unknown color",
    "$$$/Tolvane/Str/ResColorModel/2=gray color",
    "$$$/Tolvane/Str/ResColorModel/3=RGB color",
    "$$$/Tolvane/Str/ResColorModel/4=CMYK color",
    "$$$/Tolvane/Str/ResColorModel/5=none",
};

const char* const ResFontType[10] = {
    "$$$/Tolvane/Str/ResFontType/0/Win=fonttype",
    "$$$/Tolvane/Str/ResFontType/1= (Type 1)",
    "$$$/Tolvane/Str/ResFontType/2= (CID Type 1)",
    "$$$/Tolvane/Str/ResFontType/3= (TrueType)",
    "$$$/Tolvane/Str/ResFontType/4= (NWD)",
    "$$$/Tolvane/Str/ResFontType/5= (MM)",
    "$$$/Tolvane/Str/ResFontType/6= (Bitmap)",
    "$$$/Tolvane/Str/ResFontType/7= (OTF)",
    "$$$/Tolvane/Str/ResFontType/8= (unknown)",
    "$$$/Tolvane/Str/ResFontType/9= (not installed)",
};

const char* const ResFontTypeDetail[10] = {
    "$$$/Tolvane/Str/ResFontTypeDetail/0/Win=fonttypedetail",
    "$$$/Tolvane/Str/ResFontTypeDetail/1=Type 1",
    "$$$/Tolvane/Str/ResFontTypeDetail/2=CID Type 1",
    "$$$/Tolvane/Str/ResFontTypeDetail/3=TrueType",
    "$$$/Tolvane/Str/ResFontTypeDetail/4=NWD",
    "$$$/Tolvane/Str/ResFontTypeDetail/5=Multiple Master",
    "$$$/Tolvane/Str/ResFontTypeDetail/6=Bitmap Font",
    "$$$/Tolvane/Str/ResFontTypeDetail/7=Open Type Font",
    "$$$/Tolvane/Str/ResFontTypeDetail/8=Unknown",
    "$$$/Tolvane/Str/ResFontTypeDetail/9=Not Installed",
};

}  // namespace tolvane

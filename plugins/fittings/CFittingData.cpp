#include "fittings/CFittingData.h"

#include "module/catalog/CASCatalog.h"

#include "framework/catalog/CCatalogItem.h"
#include "framework/catalog/CatalogTags.h"

#include <cwctype>
#include <vector>

namespace XimoGis::AssemblySchemes::Fittings {

namespace {

double ReadNumber(const Data::CCatalogItem& item, const wchar_t* tag) {
    double value = 0.0;
    const auto property = item.GetProperty(tag);
    return property && property->GetValue().ToDouble(value) ? value : 0.0;
}

}  // namespace

bool CFittingData::Read(const Data::CCatalogItem* item, CFittingData& data, std::wstring& problem) {
    using namespace Data::CatalogTags;
    if (!item) {
        problem = L"no catalog item";
        return false;
    }
    data = CFittingData();
    data.dn = ReadNumber(*item, kNominalDiameter);
    if (!(data.dn > 0.0)) {
        problem = std::wstring(kNominalDiameter) + L" is not a positive number";
        return false;
    }
    const double pn = ReadNumber(*item, kNominalPressure);
    if (pn > 0.0) data.pn = pn;
    data.length = ReadNumber(*item, kLength);
    data.angle = ReadNumber(*item, kAngle);
    data.outletDn = ReadOutletDiameter(CASCatalog::GetCatalogNumber(item), data.dn);
    return true;
}

double CFittingData::ReadOutletDiameter(const std::wstring& catalogNumber, double dn) {
    std::vector<double> numbers;
    for (std::size_t i = 0; i < catalogNumber.size();) {
        if (!std::iswdigit(catalogNumber[i])) {
            ++i;
            continue;
        }
        double number = 0.0;
        for (; i < catalogNumber.size() && std::iswdigit(catalogNumber[i]); ++i)
            number = number * 10.0 + (catalogNumber[i] - L'0');
        numbers.push_back(number);
    }
    // The pressure closes the number, so the outlet needs one more number after it.
    for (std::size_t i = 0; i + 2 < numbers.size(); ++i) {
        if (numbers[i] == dn) return numbers[i + 1] > 0.0 && numbers[i + 1] <= dn ? numbers[i + 1] : 0.0;
    }
    return 0.0;
}

}  // namespace XimoGis::AssemblySchemes::Fittings

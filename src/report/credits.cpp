#include "report/credits.h"

#include "platform/forms/controls.h"
#include "platform/forms/picture.h"

namespace zv::report {

using namespace Qt::StringLiterals;
using namespace forms;

void addCredits(Form& form, const CreditsPlan& plan) {
    auto* logo = form.add<Picture>(u"ImagenLogoOrquesta"_s, plan.logo);
    setRole(logo, Role::PageImage);
    logo->setAccessibleName(Product.toString());
    logo->setPicture({{}, u"logo"_s, {plan.logo.Width, plan.logo.Height}});
    dress(form.add<Label>({}, plan.name), Role::Heading, Product.toString(), type::XXL, true, plan.alignment);
    form.add<Rule>({}, plan.rule);
    for (const Credit& line : plan.lines)
        dress(form.add<Label>({}, line.rect), Role::None, line.text.toString(), line.typeHeight, false, plan.alignment);
}

} // namespace zv::report

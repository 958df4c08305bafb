#pragma once

#include "host/chain_copy.h"
#include "host/drawing_model.h"
#include "interface/calc_tol_dlg_base.h"
#include "interface/dim_params.h"
#include "interface/variable_params.h"

/// What a pick of the dimension loads.
CDimParams ToParams(const DrawingDimension& dimension);

/// SetDlgParams or SetCloseDimDlgParams.
using RecordLoader = void (CCalcTolDlgBase::*)(CString&, CString&, CString&, int&, CString&, CString&, CString&, int,
                                               int&);

/// Loads the record into the open tolerance dialog; what the dialog may write into it is not looked at.
void LoadRecord(CCalcTolDlgBase& dialog, RecordLoader loader, CDimParams params);

/// The values of a row that the module makes from the record.
CopiedLink ToCopy(const CDimParams& params);

/// The same after the row of a link was rewritten from the record: its nominal size, kind and law stay.
CopiedLink Rewritten(const CopiedLink& link, const CDimParams& params);

/// Whether a tolerance dialog that shows this record may have been filled from that link: in all that the user can't
/// change in the list.
bool MayShow(const CDimParams& params, const CopiedLink& link);
/// The same of the distribution dialog.
bool MayShow(const CVariableParams& params, const CopiedLink& link);

bool operator==(const CDimParams& left, const CDimParams& right);

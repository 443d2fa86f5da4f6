#include <KOVAVSFDataGrid>

"""The module that PyQt6's uic imports for a form with the grid, because form files name the header KOVAVSFDataGrid."""
from kovavsfdatagrid import KOVAVSFDataGrid

__all__ = ['KOVAVSFDataGrid']

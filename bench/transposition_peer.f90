! The peer that a Fortran compiler is: its own transpose, on the same memory. A row-major matrix is here the
! column-major one of swapped extents.
subroutine transpose_by_fortran(from, to, rows, columns) bind(c)
  use iso_c_binding, only: c_int, c_double
  implicit none
  integer(c_int), value :: rows, columns
  real(c_double), intent(in) :: from(columns, rows)
  real(c_double), intent(out) :: to(rows, columns)
  to = transpose(from)
end subroutine

! The peer that a Fortran compiler is: its own matmul. A row-major product a * b is here the column-major one of
! b and a.
subroutine multiply_reals_by_fortran(c, a, b, m, k, n) bind(c)
  use iso_c_binding, only: c_int, c_double
  implicit none
  integer(c_int), value :: m, k, n
  real(c_double), intent(in) :: a(k, m), b(n, k)
  real(c_double), intent(out) :: c(n, m)
  c = matmul(b, a)
end subroutine

subroutine multiply_integers_by_fortran(c, a, b, m, k, n) bind(c)
  use iso_c_binding, only: c_int
  implicit none
  integer(c_int), value :: m, k, n
  integer(c_int), intent(in) :: a(k, m), b(n, k)
  integer(c_int), intent(out) :: c(n, m)
  c = matmul(b, a)
end subroutine
